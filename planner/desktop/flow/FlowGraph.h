#pragma once

#include "planner/model/FlowObject.h"

#include <cstddef>
#include <vector>

namespace planner::desktop {

/// A step in the picture of a flow.
struct FlowBox {
    QORVar<ModelObject> object;
    bool onWay = false;     ///< links lead from it to the end of the flow
    bool hasInside = false; ///< steps stand in it
    int linksElsewhere = 0; ///< links to and from what the picture doesn't show
};

/// A link in the picture: positions of its boxes, and its real ends, which may be the behaviours of the resources.
struct FlowArrow {
    int from;
    int to;
    QORVar<ModelObject> start;
    QORVar<ModelObject> end;
    bool onWay = false;
    bool inLoop = false;
};

/// What the picture of a flow shows: what stands directly in an activity, or in a resource and its behaviour.
struct FlowGraph {
    std::vector<FlowBox> boxes;
    std::vector<FlowArrow> arrows;
    std::vector<int> lastBoxes; ///< positions of the boxes behind which the flow ends
    std::size_t total = 0;      ///< steps that stand there, drawn or not
};

/// The object whose flow is shown for a chosen one: itself where steps stand in it, else what it stands in. A resource
/// stands for its behaviour. Null for what is in no flow.
FlowObject* flowOwner(ModelObject& chosen);

/// What a box stands in, in the same sense; null at the top.
FlowObject* flowAbove(const FlowObject& owner);

/// Reads the flow of an owner. Of more steps than the limit, those are taken that the fewest links part from `around`,
/// or from the first one. The way to the end is that of the generator's walk of the owner.
FlowGraph readFlow(FlowObject& owner, const ModelObject* around, std::size_t limit);

/// The object at which a new link begins that leads away from this one: a resource's own links don't count when its
/// behaviour can have some.
FlowObject& linkStart(FlowObject& object);

} // namespace planner::desktop
