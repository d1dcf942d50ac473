#pragma once

#include "planner/model/FlowObject.h"

#include <cstddef>
#include <unordered_set>
#include <vector>

class VXMBomGenerator;

namespace planner {

/// A step in the picture of a flow.
struct FlowBox {
    QORVar<ModelObject> object;
    bool onWay = false;     ///< links lead from it to the end of the flow
    bool hasInside = false; ///< steps stand in it
    int linksElsewhere = 0; ///< links to and from what the picture doesn't show
    int within = -1;        ///< position of the box that it stands in, where there is one
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

/// What the picture of a flow shows: what stands in an activity, or in a resource and its behaviour; directly, or with
/// all that stands in that.
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

/// The way to the end of an owner's flow.
struct FlowWay {
    std::unordered_set<const QORBaseUnknown*> reached; ///< what links lead from to the end
    const ModelObject* end = nullptr;                  ///< what stands at the end
    std::vector<const ModelObject*> beforeEnd;         ///< what leads there, where that isn't a step of the owner
};

/// The way as a generator on the owner has walked it for the plan as it is now; without one a walk is made for it,
/// which costs less than a bill.
FlowWay wayToEnd(FlowObject& owner, VXMBomGenerator* walked = nullptr);

/// Reads the flow of an owner. Of more steps than the limit, those are taken that the fewest links part from `around`,
/// or from the first one.
FlowGraph readFlow(FlowObject& owner, const FlowWay& way, const ModelObject* around, std::size_t limit);

/// Reads the flow of an owner with the flows inside of its steps, all of it. A box comes before those in it.
FlowGraph readWholeFlow(FlowObject& owner);

/// The object at which a new link begins that leads away from this one: a resource's own links don't count when its
/// behaviour can have some.
FlowObject& linkStart(FlowObject& object);

} // namespace planner
