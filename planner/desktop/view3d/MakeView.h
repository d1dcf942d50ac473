#pragma once

#include "planner/desktop/view3d/ViewPeer.h"

#include <memory>

class QORViewer;

namespace planner::desktop {

/// The peer of a viewer into space, its widget a child of the parent. Where there is no OpenGL the widget says so. What
/// a person picks and points at goes to the viewer.
std::unique_ptr<ViewPeer> makeView(QORViewer& viewer, QWidget* parent);

} // namespace planner::desktop
