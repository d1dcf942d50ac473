// The way to the end isn't worked out here. The library's generator walks the owner of the flow, as it does for a bill,
// and its flow nodes tell which steps the end is reached from. So a step is pale exactly if it adds nothing to the bill
// of the owner.

#include "planner/desktop/flow/FlowGraph.h"

#include "planner/bill/BillRemarks.h"
#include "planner/desktop/flow/Loops.h"
#include "planner/model/Contents.h"

#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"

#include <algorithm>
#include <deque>
#include <unordered_map>
#include <unordered_set>

namespace planner::desktop {

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
    std::vector<std::vector<int>> successors(graph.boxes.size());
    for (const FlowArrow& arrow : graph.arrows) {
        successors[arrow.from].push_back(arrow.to);
    }
    const std::vector<int> loops = loopsOf(successors);
    for (FlowArrow& arrow : graph.arrows) {
        arrow.inLoop = loops[arrow.from] == loops[arrow.to];
    }
}

void addLast(FlowGraph& graph, const Places& places, const VXMFabFlowNode* node) {
    const auto place = node ? places.find(ModelObject::behind(node->GetActivity())) : places.end();
    if (place != places.end() && graph.boxes[place->second].onWay) {
        graph.lastBoxes.push_back(place->second);
    }
}

/// The owner's own node stands behind all of its steps; where the flow ends at a step, it is that one.
void markWay(FlowGraph& graph, const Places& places, VXMBomGenerator& generator, FlowObject& owner) {
    generator.MainCheckFlow();
    const auto reached = objectsOnWayToEnd(generator, owner);
    for (FlowBox& box : graph.boxes) {
        box.onWay = reached.contains(box.object.Get());
    }
    for (FlowArrow& arrow : graph.arrows) {
        arrow.onWay = graph.boxes[arrow.from].onWay && graph.boxes[arrow.to].onWay;
    }
    VXMFabFlowNode* const end = generator.GetLastNodeInFlow(generator.CheckUse(QORBaseUnknown_var(&owner)));
    addLast(graph, places, end);
    for (int i = 1; end && graph.lastBoxes.empty() && i <= end->GetNumberOfPredecessors(); ++i) {
        addLast(graph, places, end->GetPredecessor(i));
    }
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

FlowGraph readFlow(FlowObject& owner, const ModelObject* around, std::size_t limit) {
    Steps steps = stepsIn(owner);
    FlowGraph graph;
    graph.total = steps.size();
    if (steps.size() > limit) {
        steps = nearest(steps, around, limit);
    }
    Places places;
    for (FlowObject* const step : steps) {
        places.emplace(step, static_cast<int>(graph.boxes.size()));
        graph.boxes.push_back({step, false, hasSteps(*step)});
    }
    addArrows(graph, places);
    markLoops(graph);
    if (const auto generator = VXMMakeBomGenerator(&owner)) { // a logical node has none, as it has no bill
        markWay(graph, places, *generator, owner);
    }
    return graph;
}

} // namespace planner::desktop
