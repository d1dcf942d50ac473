#pragma once

#include "planner/file/FilePlace.h"
#include "planner/questions/check/Check.h"
#include "planner/text/StyledText.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace planner {

/// What is written of a check.
struct CheckReport {
    const ModelObject& root;
    std::string file; ///< how places call it
    const std::vector<Finding>& findings;
    std::unordered_map<std::string, FilePlace> places; ///< by id
};

/// The ids by which the places of findings are found in the text of the plan's file: see placesOfObjects.
std::unordered_set<std::string> idsOf(const std::vector<Finding>& findings);

/// For people: findings under the heading of their code, each with its place and what to do.
void writeCheckText(const CheckReport& report, TextOutput& output);

/// For programs: see docs/check.schema.json.
void writeCheckJson(const CheckReport& report, TextSink& sink);

} // namespace planner
