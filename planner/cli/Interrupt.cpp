// In a handler of signals hardly anything may be called: all that it needs stands ready in plain memory.

#include "planner/cli/Interrupt.h"

#include "planner/cli/RunProgress.h"

#include <algorithm>
#include <array>
#include <climits>
#include <csignal>
#include <unistd.h>

namespace planner {

namespace {

std::array<char, PATH_MAX> unfinished{};
volatile std::sig_atomic_t hasUnfinished = 0;

void end(int signal) {
    RunProgress::clearLine();
    if (hasUnfinished) {
        ::unlink(unfinished.data());
    }
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

} // namespace

void watchForInterrupts() {
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        if (std::signal(signal, end) == SIG_IGN) { // whoever started the program doesn't want it to end
            std::signal(signal, SIG_IGN);
        }
    }
}

void removeWhenInterrupted(const std::string& path) {
    hasUnfinished = 0;
    if (!path.empty() && path.size() < unfinished.size()) {
        *std::copy(path.begin(), path.end(), unfinished.begin()) = '\0';
        hasUnfinished = 1;
    }
}

} // namespace planner
