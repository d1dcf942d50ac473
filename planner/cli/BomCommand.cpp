#include "planner/bill/Bill.h"
#include "planner/bill/BillFormats.h"
#include "planner/bill/BillRemarks.h"
#include "planner/bill/MakeGenerator.h"
#include "planner/cli/Commands.h"
#include "planner/cli/Output.h"
#include "planner/cli/SheetOutput.h"
#include "planner/cli/Subject.h"
#include "planner/cli/TraceFile.h"

#include "planner/file/JsonText.h"
#include "planner/model/FastenerSettings.h"
#include "planner/sheet/BillSheet.h"

#include <charconv>

namespace planner {

namespace {

/// Steps above which a trace is big enough to be warned of.
constexpr std::size_t kLongTrace = 2000;

/// What is to be computed.
struct Task {
    const Plan& plan;
    ModelObject& root;
    ModelObject* end;                  ///< the step at which the flow ends, null for its own end
    std::optional<long long> maxNodes; ///< none for what fits
};

struct Computed {
    Bill bill;
    std::optional<std::string> remark;
};

/// Nothing when the step at which the flow is to end isn't part of it, after saying so.
std::optional<Computed> compute(const Task& task) {
    const FastenerSettings settings;
    const std::unique_ptr<VXMBomGenerator> generator = makeGenerator(&task.root);
    generator->SetEndOfFlow(task.end);
    if (task.maxNodes) {
        generator->SetMaxNodes(*task.maxNodes);
    }
    const DOM_Document document = generator->GetBom(0);
    Computed computed{readBill(document, generator->GetPreviewObjects()), {}};
    if (!task.end) {
        computed.remark = remarkOnBill(task.plan, task.root, *generator, computed.bill.empty());
    } else if (!generator->CheckUse(task.end)) {
        complain("--at names " + inQuotes(task.end->name()) + ", which is no step of the flow of " +
                 inQuotes(task.root.name()));
        return std::nullopt;
    } else if (task.end != &task.root && !objectsOnWayToEnd(*generator, task.root).contains(task.end)) {
        computed.remark = "--at names " + inQuotes(task.end->name()) +
                          ", which lies on no way to the end of the flow of " + inQuotes(task.root.name());
    }
    return computed;
}

/// Computes with the trace going to a file. Nothing when the trace couldn't be written, after saying so.
std::optional<Computed> computeTraced(const Task& task, const Arguments& arguments) {
    const std::string path = arguments.text("--trace");
    if (isSameFile(path, arguments.text("PLAN"))) {
        complain("--trace names the plan itself; expected another file");
        return std::nullopt;
    }
    if (const std::size_t steps = stepsFrom(task.root).size(); steps > kLongTrace) {
        complain("a trace of " + std::to_string(steps) + " steps is long: it grows with their square");
    }
    TraceFile trace(path);
    if (const auto error = trace.startError()) {
        complain(*error);
        return std::nullopt;
    }
    std::optional<Computed> computed = compute(task);
    if (const auto error = trace.finish()) {
        complain(*error);
        return std::nullopt;
    }
    return computed;
}

/// The whole number behind an option. Nothing when it isn't one, after saying so.
std::optional<long long> readCount(const Arguments& arguments, const std::string& option) {
    const std::string text = arguments.text(option);
    long long count = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    if (error != std::errc() || end != text.data() + text.size() || count < 0) {
        complain(option + " is " + inQuotes(text) + "; expected a whole number, 0 or more");
        return std::nullopt;
    }
    return count;
}

} // namespace

Status runBom(const Arguments& arguments) {
    const Subject subject = openSubject(arguments);
    const std::unique_ptr<Output> output = subject.root ? Output::openBeside(arguments) : nullptr;
    if (!output) {
        return Status::Bad;
    }
    Task task{*subject.plan, *subject.root, nullptr, std::nullopt};
    if (arguments.has("--max-nodes")) {
        task.maxNodes = readCount(arguments, "--max-nodes");
        if (!task.maxNodes) {
            return Status::Bad;
        }
    }
    if (arguments.has("--at")) {
        task.end = findStep(*subject.plan, arguments, "--at");
        if (!task.end) {
            return Status::Bad;
        }
    }
    const std::optional<Computed> computed = arguments.has("--trace") ? computeTraced(task, arguments) : compute(task);
    if (!computed) {
        return Status::Bad;
    }
    if (computed->remark) {
        complain(*computed->remark);
    }
    if (arguments.text("--format") == "xlsx") {
        return writeWorkbook(*output, computed->bill.size(), "elements",
                             [&](Workbook& workbook) { addBillSheet(workbook, computed->bill, subject.root->name()); });
    }
    writeBill(computed->bill, formatNamed(arguments.text("--format")), subject.root->name(), output->sink());
    return output->finish();
}

} // namespace planner
