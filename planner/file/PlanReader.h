#pragma once

#include "planner/model/Plan.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace planner {

/// A plan, or why there is none: a line for each fault with file, place, what is wrong and what was expected.
struct ReadResult {
    std::unique_ptr<Plan> plan; ///< null when there are errors
    std::vector<std::string> errors;
};

/// Reads the plan file of that path, "-" being standard input. Its text is left where somebody wants it.
ReadResult readPlan(const std::string& path, std::string* text = nullptr);

/// Reads a plan from its text. The name goes in front of errors; the title is what the plan is called when it doesn't
/// say so itself.
ReadResult parsePlan(std::string_view text, const std::string& name, const std::string& title);

/// Puts a JSON value into the form in which a plan keeps notes: blanks between its parts in order. Gives what is wrong
/// with it, and leaves it alone then.
std::optional<std::string> orderNotes(std::string& json);

} // namespace planner
