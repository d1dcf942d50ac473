#pragma once

#include <string>
#include <string_view>

namespace planner {

/// Exit status of the program.
enum class Status {
    Good = 0,
    Found = 1, ///< a command that looks for something has found it: a difference, a fault of the plan
    Bad = 2,   ///< bad input, or an output that can't be written
    Broken = 3 ///< a fault of the program itself, memory that ran out
};

/// Writes a line to standard error, the program's name in front.
void complain(std::string_view message);

/// Writes a line to standard error as it is.
void complainPlain(std::string_view line);

} // namespace planner
