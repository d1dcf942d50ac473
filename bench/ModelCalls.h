#pragma once

#include "bench/PlanDraft.h"

namespace bench {

/// Asks each object of a plan what an analysis asks it, through the same interfaces, and does nothing with the answers:
/// the share of an analysis that is the model's own.
void callModel(const Sample& sample);

} // namespace bench
