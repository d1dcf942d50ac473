#include "planner/cli/Status.h"

#include <cstdio>
#include <cstring>

namespace planner {

void complain(std::string_view message) {
    complainPlain("planner: " + std::string(message));
}

void complainPlain(std::string_view line) {
    const std::string text = std::string(line) + '\n';
    std::fwrite(text.data(), 1, text.size(), stderr);
}

Status endOfOutput(int error) {
    if (error == 0) {
        return Status::Good;
    }
    complain(std::string("standard output can't be written: ") + std::strerror(error));
    return Status::Bad;
}

} // namespace planner
