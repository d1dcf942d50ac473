#pragma once

#include "planner/model/Plan.h"

#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

class VXMBomGenerator;

namespace planner {

/// The root of an analysis and the steps below it, activities and resources, logical nodes left out. The root is first.
std::vector<const ModelObject*> stepsFrom(const ModelObject& root);

/// The objects from which links lead to the end of the flow of the root of an analysis, that end included. Ask it after
/// the bill was computed, or the flow was walked.
std::unordered_set<const QORBaseUnknown*> objectsOnWayToEnd(VXMBomGenerator& generator, const ModelObject& root);

/// What a person should know of a bill that is empty though steps list items, or that steps add nothing to since they
/// lie on no path to the end of the plan: one line that says so and why. Ask it after the bill was computed.
std::optional<std::string> remarkOn(VXMBomGenerator& generator, const std::vector<const ModelObject*>& steps,
                                    bool billIsEmpty);

} // namespace planner
