#include "planner/questions/diff/Diff.h"

#include "planner/questions/diff/EditsBehind.h"

namespace planner {

std::vector<BillChange> diffBills(const BilledPlan& before, const BilledPlan& after) {
    ShapeNumbers numbers;
    const std::vector<BillNode> treeBefore = treeOf(before.bill, numbers);
    const std::vector<BillNode> treeAfter = treeOf(after.bill, numbers);
    std::vector<PlacedChange> placed = compareBills(treeBefore, treeAfter);
    findEditsBehind(before, after, treeBefore, treeAfter, placed);
    std::vector<BillChange> changes;
    changes.reserve(placed.size());
    for (PlacedChange& each : placed) {
        changes.push_back(std::move(each.change));
    }
    return changes;
    changes.reserve(placed.size());
}

} // namespace planner
