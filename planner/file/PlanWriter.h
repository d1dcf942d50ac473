#pragma once

#include "planner/file/TextSink.h"
#include "planner/model/Plan.h"

#include <optional>
#include <string>

namespace planner {

/// Writes a plan in the standard form of its file: keys in a fixed order, an object a line, nested ones indented. What
/// the plan doesn't say for itself (a default name, an absent list) isn't written, so reading gives the same plan and
/// writing it again the same bytes.
void writePlan(const Plan& plan, TextSink& sink);

/// Writes a plan to a file in one step. Gives what went wrong, or nothing; on failure the file is as it was.
std::optional<std::string> writePlanFile(const Plan& plan, const std::string& path);

} // namespace planner
