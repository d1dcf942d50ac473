#pragma once

#include "planner/desktop/view3d/Solid.h"

#include <AIS_InteractiveContext.hxx>
#include <Prs3d_Drawer.hxx>
#include <V3d_View.hxx>

#include <string>

class QORBaseUnknown;

namespace planner::desktop {

/// How an object is dressed, by what it is in the plan: a part in a colour that goes by its shape, a fastener in a
/// colour that stands out, a tool so that one sees through it.
enum class Look { Part, Fastener, Tool };
Look lookOf(QORBaseUnknown& object);

/// A solid to be shown, in the colours of its file or those of its look. Equal seeds get equal colours.
Handle(AIS_InteractiveObject) dressed(const Solid& solid, Look look, const std::string& seed);

/// Edges of what is shown; smoothness of a view; its axes and the width of its lines on a screen where so many pixels
/// make one of 100 %; its background.
void dressContext(AIS_InteractiveContext& context);
void dressView(V3d_View& view);
void setFineness(V3d_View& view, double ratio);
void setBackground(V3d_View& view, bool isDark);

/// Filled light for what was picked, for how it shines through what stands before it, and for what the pointer is over.
Handle(Prs3d_Drawer) lightOfPicked();
Handle(Prs3d_Drawer) lightOfShine();
Handle(Prs3d_Drawer) lightOfHovered();

} // namespace planner::desktop
