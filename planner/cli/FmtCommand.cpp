#include "planner/cli/Commands.h"
#include "planner/cli/Output.h"
#include "planner/cli/Subject.h"

#include "planner/file/PlanWriter.h"

namespace planner {

Status runFmt(const Arguments& arguments) {
    const std::unique_ptr<Plan> plan = loadPlan(arguments.text("PLAN"));
    const std::unique_ptr<Output> output = plan ? Output::open(arguments) : nullptr;
    if (!output) {
        return Status::Bad;
    }
    writePlan(*plan, output->sink());
    return output->finish();
}

} // namespace planner
