#pragma once

#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"

namespace planner {

/// The nodes that half of the memory takes which this process may still use: what the machine has available, within the
/// limits of its control groups and its own. VXMBomGenerator::kMaxNodes where the machine doesn't tell.
long long nodesThatFit();

/// A new generator for the bill under a root, bounded by what fits; null where there is no bill.
std::unique_ptr<VXMBomGenerator> makeGenerator(const QORBaseUnknown_var& root);

} // namespace planner
