#include "planner/bill/Bill.h"
#include "planner/bill/BillFormats.h"
#include "planner/bill/BillRemarks.h"
#include "planner/cli/Commands.h"
#include "planner/cli/TraceFile.h"

#include "planner/file/JsonText.h"
#include "planner/file/SourceText.h"
#include "planner/model/FastenerSettings.h"

#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

namespace planner {

namespace {

/// Steps above which a trace is big enough to be warned of.
constexpr std::size_t kLongTrace = 2000;

/// The object to analyse, null after saying why there is none.
ModelObject* chooseRoot(const Plan& plan, const BomOptions& options) {
    if (!options.root) {
        return plan.process();
    }
    ModelObject* const object = plan.find(*options.root);
    const std::string asked = "--root names " + inQuotes(*options.root) + ", which is ";
    constexpr const char* kExpected = "; expected the id of an activity or a resource";
    if (!object) {
        complain(asked + "not in " + sourceName(options.plan) + kExpected);
        return nullptr;
    }
    const bool isActivity = object->sort() == Sort::Activity;
    const bool isLogical = isActivity && !static_cast<const Activity*>(object)->isStep();
    if ((isActivity && !isLogical) || object->sort() == Sort::Resource) {
        return object;
    }
    complain(asked + (isLogical ? "a logical node" : sortText(object->sort())) + kExpected);
    return nullptr;
}

bool isSameFile(const std::string& left, const std::string& right) {
    std::error_code missing; // two paths of which one leads nowhere are two files
    return std::filesystem::equivalent(left, right, missing) && !missing;
}

/// Sets the thirteen switches of the fastener settings for this run.
void setFasteners(const BomOptions& options) {
    for (std::size_t i = 0; i < VXMFastenerTypes.size(); ++i) {
        FastenerSettings::store().Set(VXMFastenerTypes[i].setting, options.fasteners[i] ? 1 : 0);
    }
    FastenerSettings::store().Set(VXMAssignedFastenersOnlySetting, options.unassignedFasteners ? 0 : 1);
}

struct Computed {
    Bill bill;
    std::optional<std::string> remark;
};

Computed compute(ModelObject& root, const std::vector<const ModelObject*>& steps) {
    const FastenerSettings settings;
    const std::unique_ptr<VXMBomGenerator> generator = VXMMakeBomGenerator(&root);
    const DOM_Document document = generator->GetBom(0);
    Computed computed{readBill(document, generator->GetPreviewObjects()), {}};
    computed.remark = remarkOn(*generator, steps, computed.bill.empty());
    return computed;
}

/// Computes with the trace going to a file. Nothing when the trace couldn't be written, after saying so.
std::optional<Computed> computeTraced(ModelObject& root, const std::vector<const ModelObject*>& steps,
                                      const BomOptions& options) {
    if (isSameFile(*options.trace, options.plan)) {
        complain("--trace names the plan itself; expected another file");
        return std::nullopt;
    }
    if (steps.size() > kLongTrace) {
        complain("a trace of " + std::to_string(steps.size()) + " steps is long: it grows with their square");
    }
    TraceFile trace(*options.trace);
    if (const auto error = trace.startError()) {
        complain(*error);
        return std::nullopt;
    }
    Computed computed = compute(root, steps);
    if (const auto error = trace.finish()) {
        complain(*error);
        return std::nullopt;
    }
    return computed;
}

/// What is said of an empty bill of a process in which nothing is to be found, when resources stand beside it.
std::string remarkOnEmptyProcess(const Plan& plan) {
    return "the bill is empty: the process lists nothing; name a resource with --root, as " +
           inQuotes(plan.resources.entries().front()->id());
}

} // namespace

Status runBom(const BomOptions& options) {
    setFasteners(options);
    const std::unique_ptr<Plan> plan = loadPlan(options.plan);
    ModelObject* const root = plan ? chooseRoot(*plan, options) : nullptr;
    if (!root) {
        return Status::Bad;
    }
    if (options.legacy) {
        ::setenv("FAB_BOM_OLD_ALGORITHM", "TRUE", 1);
    }
    const std::vector<const ModelObject*> steps = stepsFrom(*root);
    const std::optional<Computed> computed =
        options.trace ? computeTraced(*root, steps, options) : std::optional(compute(*root, steps));
    if (!computed) {
        return Status::Bad;
    }
    if (computed->remark) {
        complain(*computed->remark);
    } else if (computed->bill.empty() && !options.root && !plan->resources.empty()) {
        complain(remarkOnEmptyProcess(*plan));
    }
    TextSink sink(STDOUT_FILENO);
    writeBill(computed->bill, options.format, root->name(), sink);
    return endOfOutput(sink.finish());
}

} // namespace planner
