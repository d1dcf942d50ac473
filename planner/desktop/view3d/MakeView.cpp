#include "planner/desktop/view3d/MakeView.h"

#include "planner/desktop/view3d/NoView.h"

namespace planner::desktop {

std::unique_ptr<ViewPeer> makeView(QORViewer&, QWidget* parent) {
    return std::make_unique<NoView>("this build draws none.", parent);
}

} // namespace planner::desktop
