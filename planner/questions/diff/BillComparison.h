#pragma once

#include "planner/questions/diff/BillTree.h"
#include "planner/questions/diff/Diff.h"

#include <vector>

namespace planner {

/// A change of the bill, with the elements that it is about by their positions in both trees; 0 where there is none.
struct PlacedChange {
    BillChange change;
    std::uint32_t before;
    std::uint32_t after;
    std::uint32_t wholesBefore = 1; ///< how far up from it the elements are that went, and one more
    std::uint32_t wholesAfter = 1;  ///< likewise those that came
};

/// The changes without what stands behind them.
std::vector<PlacedChange> compareBills(const std::vector<BillNode>& before, const std::vector<BillNode>& after);

} // namespace planner
