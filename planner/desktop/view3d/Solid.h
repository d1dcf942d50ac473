#pragma once

#include <Quantity_Color.hxx>
#include <TopoDS_Shape.hxx>

#include <utility>
#include <vector>

namespace planner::desktop {

/// A shape in millimetres, with the colours that a file gives to pieces of it.
struct Solid {
    TopoDS_Shape shape;
    std::vector<std::pair<TopoDS_Shape, Quantity_Color>> colours;
};

} // namespace planner::desktop
