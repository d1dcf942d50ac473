#include "planner/flow/FlowSvg.h"

#include "planner/flow/FlowDot.h"
#include "planner/flow/Graphviz.h"
#include "planner/text/Words.h"

namespace planner {

using graphviz::context;
using graphviz::Graph;

namespace {

/// What makes a flow too large to be drawn, if it is.
std::optional<std::string> complaintOnSize(const FlowGraph& graph) {
    const bool isLarge = graph.boxes.size() > kDrawnSteps || graph.arrows.size() > kDrawnLinks;
    const auto size = [](std::size_t steps, std::size_t links) {
        return counted(steps, "step") + " and " + counted(links, "link");
    };
    return isLarge ? std::optional("the flow has " + size(graph.boxes.size(), graph.arrows.size()) +
                                   ", and is drawn only up to " + size(kDrawnSteps, kDrawnLinks))
                   : std::nullopt;
}

/// The element alone, without what stands before it in a file of its own.
std::string elementOf(std::string_view document) {
    const std::size_t start = document.find("<svg");
    return start == std::string_view::npos ? std::string() : std::string(document.substr(start));
}

} // namespace

FlowPicture drawFlow(const FlowGraph& graph, const FlowObject& owner) {
    if (const auto complaint = complaintOnSize(graph)) {
        return {{}, *complaint};
    }
    std::string text;
    TextSink sink(text);
    writeDot(graph, owner, sink);
    sink.finish();
    const Graph drawing(agmemread(text.c_str()));
    char* data = nullptr;
    unsigned length = 0;
    if (!drawing || gvLayout(context(), drawing.get(), "dot") != 0 ||
        gvRenderData(context(), drawing.get(), "svg", &data, &length) != 0) {
        return {{}, "Graphviz can't draw the flow"};
    }
    FlowPicture picture{elementOf({data, length}), {}};
    gvFreeRenderData(data);
    return picture;
}

} // namespace planner
