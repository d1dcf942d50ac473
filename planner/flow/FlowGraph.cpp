// The way to the end isn't worked out here. The library's generator walks the owner of the flow, as it does for a bill,
// and its flow nodes tell which steps the end is reached from. So a step is pale exactly if it adds nothing to the bill
// of the owner.

#include "planner/flow/FlowGraph.h"

#include "planner/bill/BillRemarks.h"
#include "planner/model/Contents.h"
#include "planner/questions/check/Loops.h"

#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"

#include <algorithm>
#include <deque>
#include <unordered_map>
#include <unordered_set>

namespace planner {

namespace {

using Steps = std::vector<FlowObject*>;

Behaviour* behaviourOf(const ModelObject& object) {
    return object.sort() == Sort::Resource ? static_cast<const Resource&>(object).behaviour() : nullptr;
}

/// What stands directly in an owner; a behaviour's steps count as its resource's.
Steps stepsIn(FlowObject& owner) {
    Steps steps;
    visitContained(owner, [&](FlowObject& object) {
        if (object.sort() != Sort::Behaviour) {
            steps.push_back(&object);
            return;
        }
        for (Activity* const activity : static_cast<Behaviour&>(object).activities) {
            steps.push_back(activity);
        }
    });
    return steps;
}

bool hasSteps(FlowObject& object) {
    if (object.sort() == Sort::Activity) {
        return !static_cast<Activity&>(object).children.empty();
    }
    return !stepsIn(object).empty();
}

/// The object that has a box for an end of a link.
const ModelObject* boxed(const FlowObject& end) {
    return end.sort() == Sort::Behaviour ? end.container() : &end;
}

/// Calls visit(link) for the links of a step and of its behaviour.
template <class Visit>
void visitLinks(const FlowObject& step, LinkView const& (FlowObject::*view)() const, Visit visit) {
    for (const Link* const link : (step.*view)()) {
        visit(*link);
    }
    if (const Behaviour* const behaviour = behaviourOf(step)) {
        for (const Link* const link : (behaviour->*view)()) {
            visit(*link);
        }
    }
}

/// Those of the steps that are nearest to a place by links, at most as many as the limit, in the order of the plan.
Steps nearest(const Steps& steps, const ModelObject* around, std::size_t limit) {
    const std::unordered_set<const ModelObject*> all(steps.begin(), steps.end());
    std::unordered_set<const ModelObject*> met;
    std::deque<const FlowObject*> open;
    const auto meet = [&](const ModelObject* object) {
        if (met.size() < limit && all.contains(object) && met.insert(object).second) {
            open.push_back(static_cast<const FlowObject*>(object));
        }
    };
    meet(around);
    for (auto step = steps.begin(); met.size() < limit && step != steps.end(); ++step) {
        for (; !open.empty(); open.pop_front()) {
            visitLinks(*open.front(), &FlowObject::linksOut, [&](const Link& link) { meet(boxed(*link.to)); });
            visitLinks(*open.front(), &FlowObject::linksIn, [&](const Link& link) { meet(boxed(*link.from)); });
        }
        meet(*step);
    }
    Steps taken;
    std::copy_if(steps.begin(), steps.end(), std::back_inserter(taken),
                 [&](const FlowObject* step) { return met.contains(step); });
    return taken;
}

using Places = std::unordered_map<const ModelObject*, int>;

void addArrows(FlowGraph& graph, const Places& places) {
    for (int from = 0; from < static_cast<int>(graph.boxes.size()); ++from) {
        const auto& step = static_cast<const FlowObject&>(*graph.boxes[from].object.Get());
        visitLinks(step, &FlowObject::linksOut, [&](const Link& link) {
            const auto to = places.find(boxed(*link.to));
            if (to == places.end()) {
                ++graph.boxes[from].linksElsewhere;
            } else {
                graph.arrows.push_back({from, to->second, link.from, link.to});
            }
        });
        visitLinks(step, &FlowObject::linksIn, [&](const Link& link) {
            graph.boxes[from].linksElsewhere += places.contains(boxed(*link.from)) ? 0 : 1;
        });
    }
}

/// Arrows inside of a loop of those that are drawn.
void markLoops(FlowGraph& graph) {
    std::vector<std::vector<std::uint32_t>> successors(graph.boxes.size());
    for (const FlowArrow& arrow : graph.arrows) {
        successors[arrow.from].push_back(static_cast<std::uint32_t>(arrow.to));
    }
    Graph boxes;
    for (const std::vector<std::uint32_t>& each : successors) {
        boxes.targets.insert(boxes.targets.end(), each.begin(), each.end());
        boxes.endVertex();
    }
    const Components loops = componentsOf(boxes);
    for (FlowArrow& arrow : graph.arrows) {
        arrow.inLoop = loops.of[arrow.from] == loops.of[arrow.to];
    }
}

void addLast(FlowGraph& graph, const Places& places, const ModelObject* last) {
    const auto place = places.find(last);
    if (place != places.end() && graph.boxes[place->second].onWay) {
        graph.lastBoxes.push_back(place->second);
    }
}

void markWay(FlowGraph& graph, const Places& places, const FlowWay& way) {
    for (FlowBox& box : graph.boxes) {
        box.onWay = way.reached.contains(box.object.Get());
    }
    for (FlowArrow& arrow : graph.arrows) {
        arrow.onWay = graph.boxes[arrow.from].onWay && graph.boxes[arrow.to].onWay;
    }
    addLast(graph, places, way.end);
    if (graph.lastBoxes.empty()) {
        for (const ModelObject* const last : way.beforeEnd) {
            addLast(graph, places, last);
        }
    }
}

/// Adds to the boxes what joins them.
void complete(FlowGraph& graph, const FlowWay& way) {
    Places places;
    for (const FlowBox& box : graph.boxes) {
        places.emplace(box.object.Get(), static_cast<int>(places.size()));
    }
    addArrows(graph, places);
    markLoops(graph);
    markWay(graph, places, way);
}

const ModelObject* objectOf(const VXMFabFlowNode& node) {
    return ModelObject::behind(node.GetActivity());
}

bool isStepOf(const ModelObject* object, const FlowObject& owner) {
    return object && object->sort() != Sort::Item && flowAbove(static_cast<const FlowObject&>(*object)) == &owner;
}

} // namespace

FlowObject* flowAbove(const FlowObject& owner) {
    ModelObject* const container = owner.container();
    if (container && container->sort() == Sort::Behaviour) {
        return flowAbove(static_cast<FlowObject&>(*container));
    }
    return static_cast<FlowObject*>(container);
}

FlowObject* flowOwner(ModelObject& chosen) {
    if (chosen.sort() == Sort::Item) {
        return nullptr;
    }
    auto& object = static_cast<FlowObject&>(chosen);
    FlowObject* const above = flowAbove(object);
    if (object.sort() == Sort::Behaviour) {
        return above;
    }
    return hasSteps(object) || !above ? &object : above;
}

FlowObject& linkStart(FlowObject& object) {
    Behaviour* const behaviour = behaviourOf(object);
    return behaviour && !behaviour->id().empty() ? *behaviour : object;
}

FlowWay wayToEnd(FlowObject& owner, VXMBomGenerator* walked) {
    std::unique_ptr<VXMBomGenerator> own;
    if (!walked) {
        own = VXMMakeBomGenerator(&owner);
        walked = own.get();
        if (!walked) {
            return {}; // a logical node has no bill
        }
        walked->MainCheckFlow();
    }
    FlowWay way{objectsOnWayToEnd(*walked, owner), nullptr, {}};
    const VXMFabFlowNode* const end = walked->GetLastNodeInFlow(walked->CheckUse(QORBaseUnknown_var(&owner)));
    if (!end) {
        return way;
    }
    way.end = objectOf(*end);
    // The owner's own node stands behind all of its steps; where the flow ends at a step, it is that one.
    for (int i = 1; !isStepOf(way.end, owner) && i <= end->GetNumberOfPredecessors(); ++i) {
        way.beforeEnd.push_back(objectOf(*end->GetPredecessor(i)));
    }
    return way;
}

FlowGraph readFlow(FlowObject& owner, const FlowWay& way, const ModelObject* around, std::size_t limit) {
    Steps steps = stepsIn(owner);
    const std::size_t total = steps.size();
    if (steps.size() > limit) {
        steps = nearest(steps, around, limit);
    }
    FlowGraph graph;
    for (FlowObject* const step : steps) {
        graph.boxes.push_back({step, false, hasSteps(*step)});
    }
    graph.total = total;
    complete(graph, way);
    return graph;
}

FlowGraph readWholeFlow(FlowObject& owner) {
    FlowGraph graph;
    Places places;
    walkContents(owner, [&](FlowObject& object, const ModelObject*) {
        if (object.sort() == Sort::Behaviour || &object == &owner) {
            return;
        }
        const auto within = places.find(flowAbove(object));
        places.emplace(&object, static_cast<int>(graph.boxes.size()));
        graph.boxes.push_back({&object, false, hasSteps(object), 0, within == places.end() ? -1 : within->second});
    });
    graph.total = graph.boxes.size();
    complete(graph, wayToEnd(owner));
    return graph;
}

} // namespace planner
