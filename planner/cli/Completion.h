#pragma once

#include "planner/cli/Command.h"

namespace planner {

/// Scripts that teach a shell the words of the command line, made from the table of commands: the commands, their
/// options, the choices of a value; plan files where a plan is expected.
std::string bashCompletion();
std::string zshCompletion();
std::string fishCompletion();

/// The choices of a parameter as words that need no quotes: blanks become hyphens where those don't count.
std::vector<std::string> choiceWords(const Parameter& parameter);

} // namespace planner
