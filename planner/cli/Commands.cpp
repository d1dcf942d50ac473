#include "planner/cli/Commands.h"

#include "planner/file/PlanReader.h"
#include "planner/file/PlanWriter.h"

#include <unistd.h>

namespace planner {

std::unique_ptr<Plan> loadPlan(const std::string& path) {
    ReadResult result = readPlan(path);
    for (const std::string& error : result.errors) {
        complainPlain(error);
    }
    return std::move(result.plan);
}

Status runFmt(const FmtOptions& options) {
    const std::unique_ptr<Plan> plan = loadPlan(options.plan);
    if (!plan) {
        return Status::Bad;
    }
    if (options.output && *options.output != "-") {
        if (const auto error = writePlanFile(*plan, *options.output)) {
            complain(*options.output + ' ' + *error);
            return Status::Bad;
        }
        return Status::Good;
    }
    TextSink sink(STDOUT_FILENO);
    writePlan(*plan, sink);
    return endOfOutput(sink.finish());
}

} // namespace planner
