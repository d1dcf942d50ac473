// Loops in what the plan says: links, structures; and in the flow that both links and nesting make.

#include "planner/file/JsonText.h"
#include "planner/model/Contents.h"
#include "planner/questions/check/CheckWork.h"
#include "planner/questions/check/Loops.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace planner {

namespace {

constexpr std::size_t kWholePath = 40;

/// Objects as vertices, in the order in which they were entered.
struct Vertices {
    std::vector<const ModelObject*> objects;
    std::unordered_map<const ModelObject*, std::uint32_t> numbers;

    void enter(const ModelObject& object) {
        if (numbers.emplace(&object, static_cast<std::uint32_t>(objects.size())).second) {
            objects.push_back(&object);
        }
    }
};

/// A behaviour and its resource are one step.
const FlowObject& stepOf(const FlowObject& object) {
    const ModelObject* const resource = object.sort() == Sort::Behaviour ? object.container() : nullptr;
    return resource ? static_cast<const FlowObject&>(*resource) : object;
}

/// "A" → "B" → "A": all of it, or both ends of a very long one.
std::string pathText(const std::vector<const ModelObject*>& path) {
    std::string text;
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (i == kWholePath / 2 && path.size() > kWholePath) {
            const std::size_t left = path.size() - kWholePath;
            text += "… " + std::to_string(left) + " more … → ";
            i += left;
        }
        text += called(*path[i]) + " → ";
    }
    return text + called(*path.front());
}

std::string unnamedText(const Loop& loop) {
    return loop.unnamed == 0 ? "" : "; " + counted(loop.unnamed, "further loop") + " with it";
}

std::vector<const ModelObject*> objectsOf(const Loop& loop, const std::vector<const ModelObject*>& vertices) {
    std::vector<const ModelObject*> objects(loop.path.size());
    std::transform(loop.path.begin(), loop.path.end(), objects.begin(),
                   [&](std::uint32_t vertex) { return vertices[vertex]; });
    return objects;
}

/// Adds the findings of one graph. Advice is asked of advise(from, to), the ends of what closes a loop.
template <class Advise>
void addLoops(CheckWork& work, CheckCode code, const Graph& graph, const std::vector<const ModelObject*>& vertices,
              Advise advise) {
    for (const Loop& loop : loopsIn(graph, componentsOf(graph))) {
        Finding finding{code, nullptr, {}, {}, objectsOf(loop, vertices), {}};
        const std::size_t last = (loop.closing + loop.path.size() - 1) % loop.path.size();
        finding.object = finding.path.front();
        finding.message = pathText(finding.path) + unnamedText(loop);
        finding.advice = advise(*finding.path[last], *finding.path[loop.closing]);
        work.findings.push_back(std::move(finding));
    }
}

std::string linkText(const ModelObject& from, const ModelObject& to) {
    return "the link from " + called(from) + " to " + called(to);
}

void checkLinks(CheckWork& work) {
    Vertices vertices;
    Graph graph;
    walkPlan(work.plan, [&](const FlowObject& object, const ModelObject*) { vertices.enter(stepOf(object)); });
    const auto addTargets = [&](const FlowObject& object) {
        for (const Link* link : object.linksOut()) {
            graph.targets.push_back(vertices.numbers.at(&stepOf(*link->to)));
        }
    };
    for (const ModelObject* object : vertices.objects) {
        addTargets(static_cast<const FlowObject&>(*object));
        const auto* const resource = object->sort() == Sort::Resource ? static_cast<const Resource*>(object) : nullptr;
        if (resource && resource->behaviour()) {
            addTargets(*resource->behaviour());
        }
        graph.endVertex();
    }
    addLoops(work, CheckCode::LoopInLinks, graph, vertices.objects, [](const ModelObject& from, const ModelObject& to) {
        return "take out " + linkText(from, to) + ", or another of this loop";
    });
}

void checkStructures(CheckWork& work) {
    Vertices vertices;
    Graph graph;
    for (const Item* item : work.plan.items) {
        vertices.enter(*item);
    }
    for (const Resource* resource : work.plan.resources) {
        walkContents(const_cast<Resource&>(*resource), [&](const FlowObject& object, const ModelObject*) {
            object.sort() == Sort::Resource ? vertices.enter(object) : void();
        });
    }
    for (const ModelObject* object : vertices.objects) {
        for (const Relation relation : {Relation::Children, Relation::Holds}) {
            const ObjectList* const list = listOf(*object, relation);
            for (const ModelObject* part : list ? list->entries() : std::vector<ModelObject*>()) {
                graph.targets.push_back(vertices.numbers.at(part));
            }
        }
        graph.endVertex();
    }
    addLoops(work, CheckCode::LoopInStructure, graph, vertices.objects,
             [](const ModelObject& from, const ModelObject& to) {
                 return "take " + called(to) + " out of " + called(from) + "; the bill leaves it unopened there";
             });
}

/// The flow with all its links, as vertices in its order.
Graph graphOf(const ReachedFlow& flow) {
    std::unordered_map<const VXMFabFlowNode*, std::uint32_t> positions;
    for (const ReachedStep& step : flow.steps()) {
        positions.emplace(step.node, static_cast<std::uint32_t>(positions.size()));
    }
    std::vector<std::vector<std::uint32_t>> next(flow.steps().size());
    for (const ReachedStep& step : flow.steps()) {
        for (int i = 1; i <= step.node->GetNumberOfPredecessors(); ++i) {
            next[positions.at(step.node->GetPredecessor(i))].push_back(positions.at(step.node));
        }
    }
    Graph graph;
    for (const auto& targets : next) {
        graph.targets.insert(graph.targets.end(), targets.begin(), targets.end());
        graph.endVertex();
    }
    return graph;
}

bool isLinked(const ModelObject& from, const ModelObject& to) {
    const auto leads = [&](const FlowObject& step) {
        return std::any_of(step.linksOut().begin(), step.linksOut().end(),
                           [&](const Link* link) { return &stepOf(*link->to) == &to; });
    };
    const auto* const resource = from.sort() == Sort::Resource ? static_cast<const Resource*>(&from) : nullptr;
    return leads(static_cast<const FlowObject&>(from)) ||
           (resource && resource->behaviour() && leads(*resource->behaviour()));
}

bool isOfLinks(const std::vector<const ModelObject*>& path) {
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (!isLinked(*path[i], *path[(i + 1) % path.size()])) {
            return false;
        }
    }
    return true;
}

/// Loops of the flow that aren't loops of links: a step is linked with what stands in it, or in what comes before it.
void checkFlow(CheckWork& work) {
    if (!work.flow.hasLoop()) {
        return;
    }
    std::vector<const ModelObject*> objects;
    for (const ReachedStep& step : work.flow.steps()) {
        objects.push_back(step.object);
    }
    const auto before = static_cast<std::ptrdiff_t>(work.findings.size());
    addLoops(work, CheckCode::LoopInFlow, graphOf(work.flow), objects,
             [](const ModelObject& from, const ModelObject& to) {
                 return "a step comes after all that stands in it: take out the link by which " + called(to) +
                        " follows " + called(from);
             });
    work.findings.erase(std::remove_if(work.findings.begin() + before, work.findings.end(),
                                       [](const Finding& finding) { return isOfLinks(finding.path); }),
                        work.findings.end());
}

} // namespace

void checkLoops(CheckWork& work) {
    checkLinks(work);
    checkFlow(work);
    checkStructures(work);
}

} // namespace planner
