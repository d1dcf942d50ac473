#pragma once

#include <string>
#include <string_view>

namespace planner {

/// Exit status of the program.
enum class Status {
    Good = 0,
    Broken = 1, ///< a fault of the program itself, memory that ran out
    Bad = 2     ///< bad input, or an output that can't be written
};

/// Writes a line to standard error, the program's name in front.
void complain(std::string_view message);

/// Writes a line to standard error as it is.
void complainPlain(std::string_view line);

/// Ends the output on standard output: tells a write error, if there was one, by its number.
Status endOfOutput(int error);

} // namespace planner
