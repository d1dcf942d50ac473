// Graphviz measures nodes in inches and answers in points. One of our units is an inch to it, so that no length that we
// give it has a decimal point, which it would read by the rules of the user's language.

#include "planner/desktop/flow/FlowLayout.h"

#include "planner/flow/Graphviz.h"

#include <algorithm>
#include <string>

namespace planner::desktop {

using graphviz::context;
using graphviz::Graph;

namespace {

constexpr double kPointsPerUnit = 72;

/// The library asks for text that it may change.
char* text(const char* constant) {
    return const_cast<char*>(constant);
}

void set(void* object, const char* name, double value) {
    agsafeset(object, text(name), std::to_string(static_cast<int>(value)).data(), text(""));
}

void set(void* object, const char* name, const char* value) {
    agsafeset(object, text(name), text(value), text(""));
}

QPointF unitsOf(const pointf& point) {
    return {point.x / kPointsPerUnit, -point.y / kPointsPerUnit};
}

QPainterPath pathOf(Agedge_t* edge) {
    const splines* const course = ED_spl(edge);
    QPainterPath path;
    if (!course || course->size == 0) {
        return path;
    }
    const bezier& curve = course->list[0];
    path.moveTo(unitsOf(curve.list[0]));
    for (int i = 1; i + 2 < static_cast<int>(curve.size); i += 3) {
        path.cubicTo(unitsOf(curve.list[i]), unitsOf(curve.list[i + 1]), unitsOf(curve.list[i + 2]));
    }
    return path;
}

Graph makeGraph() {
    Graph graph(agopen(text("flow"), Agdirected, nullptr));
    set(graph.get(), "rankdir", "LR");
    set(graph.get(), "ranksep", kGap.width());
    set(graph.get(), "nodesep", kGap.height());
    agattr(graph.get(), AGNODE, text("shape"), text("box"));
    agattr(graph.get(), AGNODE, text("fixedsize"), text("true"));
    agattr(graph.get(), AGNODE, text("label"), text(""));
    agattr(graph.get(), AGEDGE, text("dir"), text("none"));
    return graph;
}

} // namespace

bool layOutByGraphviz(const FlowShape& shape, FlowLayout& layout) {
    const Graph graph = makeGraph();
    std::vector<Agnode_t*> nodes(shape.boxes + 1, nullptr);
    const auto nodeAt = [&](int place) {
        if (!nodes[place]) {
            nodes[place] = agnode(graph.get(), nullptr, 1);
            set(nodes[place], "width", nodeSize(shape, place).width());
            set(nodes[place], "height", nodeSize(shape, place).height());
        }
        return nodes[place];
    };
    for (int box = 0; box < shape.boxes; ++box) {
        // Nodes in the plan's order, so that an added link moves as little as may be.
        const auto touches = [&](const auto& link) {
            return link.first == box || link.second == box;
        };
        if (std::any_of(shape.links.begin(), shape.links.end(), touches)) {
            nodeAt(box);
        }
    }
    std::vector<Agedge_t*> edges;
    for (const auto& [from, to] : shape.links) {
        edges.push_back(agedge(graph.get(), nodeAt(from), nodeAt(to), nullptr, 1));
    }
    if (gvLayout(context(), graph.get(), "dot") != 0) {
        return false;
    }
    for (std::size_t node = 0; node < nodes.size(); ++node) {
        if (nodes[node]) {
            layout.centres[node] = unitsOf(ND_coord(nodes[node]));
        }
    }
    for (std::size_t i = 0; i < edges.size(); ++i) {
        layout.links[i] = pathOf(edges[i]);
    }
    return true;
}

} // namespace planner::desktop
