#include "planner/desktop/view3d/NoView.h"

#include "planner/desktop/widgets/Note.h"

namespace planner::desktop {

NoView::NoView(const QString& reason, QWidget* parent) : widget_(new Note("No 3D picture: " + reason, parent)) {}

} // namespace planner::desktop
