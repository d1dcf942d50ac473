#pragma once

#include <optional>
#include <string>

namespace planner::desktop {

/// Why no window can be shown, if so. To be asked before the application is made, which would end the process.
std::optional<std::string> displayProblem();

} // namespace planner::desktop
