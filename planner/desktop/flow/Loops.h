#pragma once

#include <vector>

namespace planner::desktop {

/// Numbers the nodes of a graph, so that exactly those have the same number that lie on a loop together. A node on no
/// loop has a number of its own. Works without recursion, in one pass over the links.
std::vector<int> loopsOf(const std::vector<std::vector<int>>& successors);

} // namespace planner::desktop
