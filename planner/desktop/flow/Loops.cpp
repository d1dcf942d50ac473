// Strongly connected components in one depth-first pass: a node is the first of its component when nothing that is
// reached from it leads back behind it; all that is on the stack above it belongs to it then.

#include "planner/desktop/flow/Loops.h"

#include <algorithm>

namespace planner::desktop {

namespace {

class Search {
public:
    explicit Search(const std::vector<std::vector<int>>& successors)
        : successors_(successors), order_(successors.size(), 0), lowest_(successors.size(), 0),
          loop_(successors.size(), -1), next_(successors.size(), 0) {}

    std::vector<int> run() {
        for (int node = 0; node < static_cast<int>(successors_.size()); ++node) {
            if (order_[node] == 0) {
                visitFrom(node);
            }
        }
        return loop_;
    }

private:
    void enter(int node) {
        order_[node] = lowest_[node] = ++count_;
        path_.push_back(node);
        open_.push_back(node);
    }

    void visitFrom(int start) {
        enter(start);
        while (!path_.empty()) {
            const int node = path_.back();
            if (next_[node] == successors_[node].size()) {
                leave(node);
                continue;
            }
            const int to = successors_[node][next_[node]++];
            if (order_[to] == 0) {
                enter(to);
            } else if (loop_[to] < 0) {
                lowest_[node] = std::min(lowest_[node], order_[to]);
            }
        }
    }

    void leave(int node) {
        path_.pop_back();
        if (!path_.empty()) {
            lowest_[path_.back()] = std::min(lowest_[path_.back()], lowest_[node]);
        }
        if (lowest_[node] == order_[node]) {
            while (loop_[node] < 0) {
                loop_[open_.back()] = node;
                open_.pop_back();
            }
        }
    }

    const std::vector<std::vector<int>>& successors_;
    std::vector<int> order_;  // in which nodes are met, from 1
    std::vector<int> lowest_; // order of the earliest open node that is reached
    std::vector<int> loop_;
    std::vector<std::size_t> next_; // successor to look at
    std::vector<int> path_;
    std::vector<int> open_; // met, and not yet in a loop
    int count_ = 0;
};

} // namespace

std::vector<int> loopsOf(const std::vector<std::vector<int>>& successors) {
    return Search(successors).run();
}

} // namespace planner::desktop
