#pragma once

#include "planner/questions/diff/BillComparison.h"
#include "planner/questions/diff/PlanEdits.h"

#include <vector>

namespace planner {

/// Puts under each change the edits that stand behind it: what was done to the element itself and to what it stood or
/// stands below, to the steps that name these and to what those stand in; and where a step has come onto the way to the
/// end of the flow, has left it or counts on more or fewer paths, the nearest edit of the flow behind it.
/// Where there is none of these, the first edits of the flow, or else the first ones.
void findEditsBehind(const BilledPlan& before, const BilledPlan& after, const std::vector<BillNode>& treeBefore,
                     const std::vector<BillNode>& treeAfter, std::vector<PlacedChange>& changes);

} // namespace planner
