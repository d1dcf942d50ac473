#pragma once

#include "planner/questions/diff/Diff.h"
#include "planner/text/StyledText.h"

#include <string>
#include <vector>

namespace planner {

/// For people: changes under a heading for each kind, the edits behind each below it. The title is that of the new
/// bill.
void writeDiffText(const std::vector<BillChange>& changes, const std::string& title, TextOutput& output);

/// For programs: see docs/diff.schema.json.
void writeDiffJson(const std::vector<BillChange>& changes, TextSink& sink);

} // namespace planner
