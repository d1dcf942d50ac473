#pragma once

#include "planner/questions/kits/Kits.h"

namespace planner {

/// Fills in the sums of kits that are complete, and what doesn't add up.
void balanceKits(const Plan& plan, const RecordedBill& bill, Kits& kits);

} // namespace planner
