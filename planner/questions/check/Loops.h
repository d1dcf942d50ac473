#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace planner {

/// A directed graph over vertices from 0, built vertex by vertex: the targets of one, then endVertex.
struct Graph {
    std::vector<std::size_t> ends; ///< by vertex: where its targets end, those of the vertex before it being in front
    std::vector<std::uint32_t> targets;

    std::size_t size() const { return ends.size(); }
    void endVertex() { ends.push_back(targets.size()); }
    std::size_t beginOf(std::uint32_t vertex) const { return vertex == 0 ? 0 : ends[vertex - 1]; }
};

/// Which vertices lie on loops with each other. Components are numbered so that one comes after all that it leads to.
struct Components {
    std::vector<std::uint32_t> of; ///< by vertex
    std::uint32_t count = 0;
};
Components componentsOf(const Graph& graph);

/// A loop: each vertex leads to the next one, the last to the first, which is the lowest of them. Without the edge that
/// closes it, from the vertex before `closing` to `closing`, it is none.
struct Loop {
    std::vector<std::uint32_t> path;
    std::size_t closing;     ///< position in the path
    std::size_t unnamed = 0; ///< with the last loop of a component: how many edges close others that aren't given
};

/// Loops of a graph such that no loop is left when each has lost its closing edge; each is as short as that edge
/// allows. Of a component no more than kMostLoops. Cost: as many times that of reading the graph.
inline constexpr std::size_t kMostLoops = 20;
std::vector<Loop> loopsIn(const Graph& graph, const Components& components);

} // namespace planner
