// Components and loops on random graphs, against the closure of the graph.

#include "planner/questions/check/Loops.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

using namespace planner;

namespace {

using Edges = std::multiset<std::pair<std::uint32_t, std::uint32_t>>;

Graph graphOf(const Edges& edges, std::uint32_t size) {
    Graph graph;
    for (std::uint32_t vertex = 0; vertex < size; ++vertex) {
        for (auto edge = edges.lower_bound({vertex, 0}); edge != edges.end() && edge->first == vertex; ++edge) {
            graph.targets.push_back(edge->second);
        }
        graph.endVertex();
    }
    return graph;
}

/// Which vertex leads to which, over one edge or more.
std::vector<std::vector<bool>> closureOf(const Edges& edges, std::uint32_t size) {
    std::vector<std::vector<bool>> leads(size, std::vector<bool>(size));
    for (const auto& [from, to] : edges) {
        leads[from][to] = true;
    }
    for (std::uint32_t over = 0; over < size; ++over) {
        for (std::uint32_t from = 0; from < size; ++from) {
            for (std::uint32_t to = 0; to < size; ++to) {
                leads[from][to] = leads[from][to] || (leads[from][over] && leads[over][to]);
            }
        }
    }
    return leads;
}

TEST(Loops, OfRandomGraphsAreLoopsAndNoneIsLeftWithoutTheirClosingEdges) {
    std::mt19937 engine(7);
    const auto below = [&](std::uint32_t limit) {
        return static_cast<std::uint32_t>(engine() % limit);
    };
    for (int round = 0; round < 300; ++round) {
        const std::uint32_t size = 1 + below(9);
        Edges edges;
        for (std::uint32_t i = below(18); i > 0; --i) {
            const std::uint32_t from = below(size);
            edges.emplace(from, below(size));
        }
        const Graph graph = graphOf(edges, size);
        const Components components = componentsOf(graph);
        const auto leads = closureOf(edges, size);
        for (std::uint32_t from = 0; from < size; ++from) {
            for (std::uint32_t to = 0; to < size; ++to) {
                EXPECT_EQ(components.of[from] == components.of[to], from == to || (leads[from][to] && leads[to][from]));
                EXPECT_TRUE(!leads[from][to] || components.of[from] >= components.of[to]);
            }
        }
        Edges left = edges;
        for (const Loop& loop : loopsIn(graph, components)) {
            ASSERT_EQ(*std::min_element(loop.path.begin(), loop.path.end()), loop.path.front());
            for (std::size_t i = 0; i < loop.path.size(); ++i) {
                EXPECT_TRUE(edges.contains({loop.path[i], loop.path[(i + 1) % loop.path.size()]}));
            }
            const std::size_t last = (loop.closing + loop.path.size() - 1) % loop.path.size();
            left.erase({loop.path[last], loop.path[loop.closing]});
        }
        const auto stillLeads = closureOf(left, size);
        for (std::uint32_t vertex = 0; vertex < size; ++vertex) {
            EXPECT_FALSE(stillLeads[vertex][vertex]) << "round " << round;
        }
    }
}

TEST(Loops, OfALargeComponentAreCountedAndDepthCostsNoStack) {
    constexpr std::uint32_t kSize = 300000;
    Edges edges{{kSize - 1, 0}};
    for (std::uint32_t vertex = 1; vertex < kSize; ++vertex) {
        edges.emplace(vertex - 1, vertex);
    }
    for (std::uint32_t vertex = 0; vertex < 100; ++vertex) {
        edges.emplace(vertex + 1, vertex);
    }
    const Graph graph = graphOf(edges, kSize);
    const auto loops = loopsIn(graph, componentsOf(graph));
    ASSERT_EQ(loops.size(), kMostLoops);
    EXPECT_EQ(loops.front().path, (std::vector<std::uint32_t>{0, 1}));
    EXPECT_EQ(loops.back().unnamed, 101 - kMostLoops);
}

} // namespace
