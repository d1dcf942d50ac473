#include "planner/cli/Commands.h"
#include "planner/cli/Completion.h"
#include "planner/cli/Output.h"

#include <unistd.h>

namespace planner {

Status runCompletion(const Arguments& arguments) {
    const std::string shell = arguments.text("SHELL");
    TextSink sink(STDOUT_FILENO);
    sink.put(shell == "bash" ? bashCompletion() : shell == "zsh" ? zshCompletion() : fishCompletion());
    return endOfOutput(sink.finish());
}

} // namespace planner
