// Components by one depth-first search that keeps its stack itself, so that no depth of a plan is too deep. Loops by a
// second one in each component: an edge that leads back to a vertex that is still open closes a loop, every loop has
// one, and the shortest way from its end to its beginning is the loop that a person gets to see.

#include "planner/questions/check/Loops.h"

#include <algorithm>
#include <limits>

namespace planner {

namespace {

constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

/// A vertex whose edges are being followed.
struct Open {
    std::uint32_t vertex;
    std::size_t edge;
};

class ComponentSearch {
public:
    explicit ComponentSearch(const Graph& graph) : graph_(graph), number_(graph.size(), kNone), low_(graph.size()) {
        found_.of.assign(graph.size(), kNone);
    }

    Components run() {
        for (std::uint32_t vertex = 0; vertex < graph_.size(); ++vertex) {
            if (number_[vertex] == kNone) {
                enter(vertex);
                while (!open_.empty()) {
                    step();
                }
            }
        }
        return std::move(found_);
    }

private:
    void enter(std::uint32_t vertex) {
        number_[vertex] = low_[vertex] = next_++;
        waiting_.push_back(vertex);
        open_.push_back({vertex, graph_.beginOf(vertex)});
    }

    void step() {
        Open& top = open_.back();
        const std::uint32_t vertex = top.vertex;
        if (top.edge == graph_.ends[vertex]) {
            leave(vertex);
            return;
        }
        const std::uint32_t target = graph_.targets[top.edge++];
        if (number_[target] == kNone) {
            enter(target);
        } else if (found_.of[target] == kNone) {
            low_[vertex] = std::min(low_[vertex], number_[target]);
        }
    }

    void leave(std::uint32_t vertex) {
        open_.pop_back();
        if (!open_.empty()) {
            std::uint32_t& above = low_[open_.back().vertex];
            above = std::min(above, low_[vertex]);
        }
        if (low_[vertex] != number_[vertex]) {
            return;
        }
        std::uint32_t member = kNone;
        while (member != vertex) {
            member = waiting_.back();
            waiting_.pop_back();
            found_.of[member] = found_.count;
        }
        ++found_.count;
    }

    const Graph& graph_;
    std::vector<std::uint32_t> number_;
    std::vector<std::uint32_t> low_; // the lowest number that is known to be reached from a vertex
    std::vector<std::uint32_t> waiting_;
    std::vector<Open> open_;
    std::uint32_t next_ = 0;
    Components found_;
};

class LoopSearch {
public:
    LoopSearch(const Graph& graph, const Components& components)
        : graph_(graph), components_(components), state_(graph.size(), State::New), before_(graph.size(), kNone) {}

    std::vector<Loop> run() {
        for (std::uint32_t vertex = 0; vertex < graph_.size(); ++vertex) {
            if (state_[vertex] == State::New) {
                searchFrom(vertex);
            }
        }
        return std::move(loops_);
    }

private:
    enum class State : std::uint8_t { New, Open, Done };
    struct Edge {
        std::uint32_t from, to;
    };

    bool isInside(std::uint32_t from, std::uint32_t to) const { return components_.of[from] == components_.of[to]; }

    /// All of a component, from its lowest vertex.
    void searchFrom(std::uint32_t start) {
        std::vector<Edge> closing;
        std::vector<Open> open{{start, graph_.beginOf(start)}};
        state_[start] = State::Open;
        while (!open.empty()) {
            Open& top = open.back();
            if (top.edge == graph_.ends[top.vertex]) {
                state_[top.vertex] = State::Done;
                open.pop_back();
                continue;
            }
            const Edge edge{top.vertex, graph_.targets[top.edge++]};
            if (!isInside(edge.from, edge.to)) {
                continue;
            }
            if (state_[edge.to] == State::New) {
                state_[edge.to] = State::Open;
                open.push_back({edge.to, graph_.beginOf(edge.to)});
            } else if (state_[edge.to] == State::Open) {
                closing.push_back(edge);
            }
        }
        addLoops(closing);
    }

    void addLoops(std::vector<Edge>& closing) {
        const auto order = [](const Edge& edge) {
            return std::uint64_t{edge.from} << 32U | edge.to;
        };
        std::sort(closing.begin(), closing.end(), [&](const Edge& l, const Edge& r) { return order(l) < order(r); });
        const auto same = [&](const Edge& left, const Edge& right) {
            return order(left) == order(right);
        };
        closing.erase(std::unique(closing.begin(), closing.end(), same), closing.end());
        const std::size_t named = std::min(closing.size(), kMostLoops);
        for (std::size_t i = 0; i < named; ++i) {
            loops_.push_back(loopOver(closing[i]));
        }
        if (named < closing.size()) {
            loops_.back().unnamed = closing.size() - named;
        }
    }

    Loop loopOver(const Edge& closing) {
        std::vector<std::uint32_t> path = wayBetween(closing.to, closing.from);
        const auto lowest = std::min_element(path.begin(), path.end());
        const auto first = static_cast<std::size_t>(lowest - path.begin());
        const std::size_t size = path.size();
        std::rotate(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(first), path.end());
        return {std::move(path), (size - first) % size};
    }

    /// The shortest way inside their component, both ends included.
    std::vector<std::uint32_t> wayBetween(std::uint32_t from, std::uint32_t to) {
        std::vector<std::uint32_t> reached{from};
        before_[from] = from;
        for (std::size_t i = 0; before_[to] == kNone; ++i) {
            const std::uint32_t vertex = reached[i];
            for (std::size_t edge = graph_.beginOf(vertex); edge < graph_.ends[vertex]; ++edge) {
                const std::uint32_t target = graph_.targets[edge];
                if (isInside(vertex, target) && before_[target] == kNone) {
                    before_[target] = vertex;
                    reached.push_back(target);
                }
            }
        }
        std::vector<std::uint32_t> path{to};
        while (path.back() != from) {
            path.push_back(before_[path.back()]);
        }
        std::reverse(path.begin(), path.end());
        for (const std::uint32_t vertex : reached) {
            before_[vertex] = kNone;
        }
        return path;
    }

    const Graph& graph_;
    const Components& components_;
    std::vector<State> state_;
    std::vector<std::uint32_t> before_; // while a way is sought: by which vertex each was reached
    std::vector<Loop> loops_;
};

} // namespace

Components componentsOf(const Graph& graph) {
    return ComponentSearch(graph).run();
}

std::vector<Loop> loopsIn(const Graph& graph, const Components& components) {
    return LoopSearch(graph, components).run();
}

} // namespace planner
