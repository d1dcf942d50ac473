#include "planner/cli/Status.h"

#include "planner/cli/RunProgress.h"

#include <cstdio>

namespace planner {

void complain(std::string_view message) {
    complainPlain("planner: " + std::string(message));
}

void complainPlain(std::string_view line) {
    RunProgress::clearLine();
    const std::string text = std::string(line) + '\n';
    std::fwrite(text.data(), 1, text.size(), stderr);
}

} // namespace planner
