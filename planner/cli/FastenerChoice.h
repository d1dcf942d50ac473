#pragma once

#include <optional>
#include <string>

namespace planner {

/// Sets the thirteen switches of the fastener settings for this run: the types that the choice names ("all", "none",
/// or names separated by commas, letter case and blanks set aside), and whether unassigned ones are shown as well.
/// Gives what is wrong with the choice, in which case nothing is set.
std::optional<std::string> setFasteners(const std::string& choice, bool unassignedAsWell);

} // namespace planner
