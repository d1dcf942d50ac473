#pragma once

#include "planner/desktop/view3d/ViewPeer.h"

#include <memory>

class QORViewer;

namespace planner::desktop {

class Choice;

/// The peer of a viewer into space, its widget a child of the parent. Where there is no OpenGL the widget says so. What
/// a person picks goes to the viewer, and by that to the choice.
std::unique_ptr<ViewPeer> makeView(QORViewer& viewer, Choice& choice, QWidget* parent);

} // namespace planner::desktop
