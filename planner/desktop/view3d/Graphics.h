#pragma once

#include "planner/desktop/view3d/ShapeStore.h"

#include <Aspect_DisplayConnection.hxx>
#include <Graphic3d_GraphicDriver.hxx>

#include <memory>
#include <string>

class Standard_Failure;

namespace planner::desktop {

/// What all views draw with: OpenGL on the display, and the solids. Lives as long as one of them does.
class Graphics {
public:
    /// The one of the process. Raises Standard_Failure or std::runtime_error where nothing can be drawn.
    static std::shared_ptr<Graphics> shared();

    const Handle(Aspect_DisplayConnection) & display() const { return display_; }
    const Handle(Graphic3d_GraphicDriver) & driver() const { return driver_; }
    ShapeStore& shapes() { return shapes_; }

private:
    Graphics();

    Handle(Aspect_DisplayConnection) display_;
    Handle(Graphic3d_GraphicDriver) driver_;
    ShapeStore shapes_;
};

/// The failure as a person reads it.
std::string reasonOf(const Standard_Failure& failure);

} // namespace planner::desktop
