#include "Program.h"

#include "PlanText.h"

#include <cstdlib>
#include <sys/wait.h>

namespace plantext {

Outcome run(const std::string& arguments, const std::string& plan) {
    const std::size_t bar = arguments.find("| ");
    std::string command = arguments;
    return runShell(command.insert(bar == std::string::npos ? 0 : bar + 2, PLANNER_PROGRAM " "), plan);
}

Outcome runShell(std::string command, const std::string& plan) {
    const std::string planFile = makeFile("plan", plan);
    const std::string output = makeFile("output", "");
    const std::string errors = makeFile("errors", "");
    for (std::size_t at = command.find('%'); at != std::string::npos; at = command.find('%', at)) {
        command.replace(at, 1, planFile);
    }
    // The braces let the arguments redirect for themselves.
    const int status = std::system(("{ " + command + "; } >" + output + " 2>" + errors).c_str());
    std::string told = contentOf(errors);
    for (std::size_t at = told.find(planFile); at != std::string::npos; at = told.find(planFile, at)) {
        told.replace(at, planFile.size(), "%");
    }
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentOf(output), told};
}

} // namespace plantext
