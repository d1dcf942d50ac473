#include "planner/cli/Commands.h"
#include "planner/cli/Output.h"
#include "planner/cli/Subject.h"

#include "planner/flow/FlowDot.h"
#include "planner/flow/FlowSvg.h"

namespace planner {

Status runFlow(const Arguments& arguments) {
    const Subject subject = openSubject(arguments);
    const std::unique_ptr<Output> output = subject.root ? Output::openBeside(arguments) : nullptr;
    if (!output) {
        return Status::Bad;
    }
    auto& owner = static_cast<FlowObject&>(*subject.root);
    const FlowGraph graph = readWholeFlow(owner);
    if (arguments.text("--format") == "dot") {
        writeDot(graph, owner, output->sink());
        return output->finish();
    }
    const FlowPicture picture = drawFlow(graph, owner);
    if (!picture.error.empty()) {
        complain(picture.error + "; name a part of it with --root, or take --format dot");
        return Status::Bad;
    }
    output->sink().put("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    output->sink().put(picture.svg);
    return output->finish();
}

} // namespace planner
