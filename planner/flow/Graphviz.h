#pragma once

#include <gvc.h>

#include <memory>

/// What every use of Graphviz begins and ends with.
namespace planner::graphviz {

/// Loaded once: reading the list of its engines takes longer than to draw a small flow.
inline GVC_t* context() {
    static const std::unique_ptr<GVC_t, int (*)(GVC_t*)> instance(gvContext(), gvFreeContext);
    return instance.get();
}

struct EndGraph {
    void operator()(Agraph_t* graph) const {
        gvFreeLayout(context(), graph);
        agclose(graph);
    }
};
/// A graph, with what was laid out of it.
using Graph = std::unique_ptr<Agraph_t, EndGraph>;

} // namespace planner::graphviz
