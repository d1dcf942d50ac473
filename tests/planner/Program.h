#pragma once

#include <string>

/// The program from outside.
namespace plantext {

struct Outcome {
    int status;
    std::string output;
    std::string errors;
};

/// Runs the program in a shell; in the arguments, % stands for the file that holds the plan. What stands in front of a
/// bar gives standard input.
Outcome run(const std::string& arguments, const std::string& plan = "");

/// Runs a shell command as it is; % stands for the file that holds the plan, also in what it says.
Outcome runShell(std::string command, const std::string& plan = "");

} // namespace plantext
