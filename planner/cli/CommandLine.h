#pragma once

#include "planner/cli/Arguments.h"

namespace planner {

/// A command line: a command with its arguments, or a text to print, or what is wrong with it.
struct CommandLine {
    std::optional<Arguments> arguments;
    std::optional<std::string> print;
    std::string error;
};

/// Reads a command line by the table of commands.
CommandLine parseCommandLine(int argc, const char* const* argv);

} // namespace planner
