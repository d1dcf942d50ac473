// The planner on the command line.

#include "planner/cli/CommandLine.h"
#include "planner/cli/Interrupt.h"
#include "planner/cli/Output.h"
#include "planner/cli/RunProgress.h"

#include "planner/file/TextSink.h"

#include "QORPlatform/framework/QORObjectCounts.h"
#include "VXMBomInfrastructure/generation/VXMTooManyNodes.h"

#include <cerrno>
#include <exception>
#include <fcntl.h>
#include <unistd.h>

namespace {

using planner::Status;

/// Gives each standard descriptor that was closed a file that refuses what it is there for. Otherwise the next file to
/// be opened would take its number, and the bill would go into it.
void fillStandardDescriptors() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(descriptor, F_GETFD) < 0 && errno == EBADF) {
            ::open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

Status run(const planner::CommandLine& line) {
    if (!line.error.empty()) {
        planner::complain(line.error);
        return Status::Bad;
    }
    if (line.print) {
        planner::TextSink sink(STDOUT_FILENO);
        sink.put(*line.print);
        return planner::endOfOutput(sink.finish());
    }
    const planner::RunProgress progress;
    return line.arguments->command().run(*line.arguments);
}

/// In debug builds every object must be gone at the end of a run.
Status checkNothingIsLeft(Status status) {
#ifndef NDEBUG
    for (const auto& [name, living] : QORLivingObjects()) {
        planner::complain(std::to_string(living) + " objects of " + name + " are left over");
        status = Status::Broken;
    }
#endif
    return status;
}

} // namespace

int main(int argc, char** argv) {
    fillStandardDescriptors();
    planner::watchForInterrupts();
    try {
        const Status status = run(planner::parseCommandLine(argc, argv));
        return static_cast<int>(checkNothingIsLeft(status));
    } catch (const VXMTooManyNodes& error) {
        planner::complain(error.what());
        return static_cast<int>(checkNothingIsLeft(Status::Bad));
    } catch (const std::exception& error) {
        planner::complain(error.what());
        return static_cast<int>(Status::Broken);
    }
}
