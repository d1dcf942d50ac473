#pragma once

#include "planner/cli/Options.h"
#include "planner/cli/Status.h"
#include "planner/model/Plan.h"

#include <memory>

namespace planner {

/// Prints the bill of a plan.
Status runBom(const BomOptions& options);

/// Writes a plan back in its standard form.
Status runFmt(const FmtOptions& options);

/// The plan of that path; null after its errors were told.
std::unique_ptr<Plan> loadPlan(const std::string& path);

} // namespace planner
