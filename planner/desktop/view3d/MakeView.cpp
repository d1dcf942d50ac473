#include "planner/desktop/view3d/MakeView.h"

#include "planner/desktop/view3d/Graphics.h"
#include "planner/desktop/view3d/NoView.h"
#include "planner/desktop/view3d/SpaceView.h"

#include <Standard_Failure.hxx>

namespace planner::desktop {

std::unique_ptr<ViewPeer> makeView(QORViewer& viewer, QWidget* parent) {
    const auto without = [&](const std::string& reason) {
        return std::make_unique<NoView>(QString::fromStdString(reason), parent);
    };
    try {
        return std::make_unique<SpaceView>(Graphics::shared(), viewer, parent);
    } catch (const Standard_Failure& failure) {
        return without("there is no X server to draw with (" + reasonOf(failure) + ")");
    } catch (const std::exception& failure) {
        return without(failure.what());
    }
}

} // namespace planner::desktop
