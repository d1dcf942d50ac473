#include "planner/cli/Commands.h"
#include "planner/cli/Output.h"
#include "planner/cli/Subject.h"

#include "planner/bill/MakeGenerator.h"
#include "planner/file/PlanReader.h"
#include "planner/file/SourceText.h"
#include "planner/questions/diff/DiffFormats.h"

#include <unistd.h>

namespace planner {

namespace {

/// A plan, what is analysed of it, and its bill. What isn't there has a plan without anything.
class Side {
public:
    Side(const std::string& path, const std::optional<std::string>& root) {
        const bool isNone = path == "/dev/null";
        name_ = sourceName(path);
        plan_ = isNone ? parsePlan(R"({"version": 1})", path, path).plan : loadPlan(path);
        if (plan_) {
            root_ = findRoot(*plan_, isNone ? std::nullopt : root, path);
        }
    }

    bool isGood() const { return root_ != nullptr; }

    BilledPlan compute() {
        generator_ = makeGenerator(root_);
        const DOM_Document document = generator_->GetBom(0);
        bill_ = readBill(document, generator_->GetPreviewObjects());
        return {*plan_, *root_, *generator_, bill_};
    }

    /// What a person should know of the bill that was computed, which file it is in front.
    std::optional<std::string> remark() const {
        const auto remark = remarkOnBill(*plan_, *root_, *generator_, bill_.empty());
        return remark ? std::optional(name_ + ": " + *remark) : std::nullopt;
    }

private:
    std::string name_;
    std::unique_ptr<Plan> plan_;
    ModelObject* root_ = nullptr;
    std::unique_ptr<VXMBomGenerator> generator_;
    Bill bill_;
};

/// Whether the operands and the output fit together; false after saying why not.
bool checkFiles(const Arguments& arguments) {
    if (arguments.text("OLD") == kStandardInput && arguments.text("NEW") == kStandardInput) {
        complain("OLD and NEW are both -; expected a plan file for one of them, standard input can be read only once");
        return false;
    }
    for (const char* operand : {"OLD", "NEW"}) {
        if (arguments.has("--output") && isSameFile(arguments.text("--output"), arguments.text(operand))) {
            complain("--output names " + std::string(operand) + " itself; expected another file");
            return false;
        }
    }
    return true;
}

void remarkOnBills(const Side& old, const Side& now) {
    const auto ofOld = old.remark();
    const auto ofNew = now.remark();
    if (ofOld) {
        complain(*ofOld);
    }
    if (ofNew && ofNew != ofOld) { // one file may be both
        complain(*ofNew);
    }
}

void writeText(const BilledPlan& before, const BilledPlan& after, const std::vector<BillChange>& changes,
               const Arguments& arguments, TextSink& sink) {
    TextOutput lines(sink, !arguments.has("--output") && takesColours(STDOUT_FILENO));
    const std::string& title = (arguments.text("NEW") == "/dev/null" ? before : after).root.name();
    if (changes.empty() && before.bill.empty()) {
        lines.line(StyledText(title, Style::Name).add(": both bills are empty", Style::Plain));
    } else {
        writeDiffText(changes, title, lines);
    }
}

} // namespace

Status runDiff(const Arguments& arguments) {
    if (!checkFiles(arguments)) {
        return Status::Bad;
    }
    const std::optional<std::string> root = arguments.value("--root");
    Side old(arguments.text("OLD"), root);
    if (!old.isGood() && arguments.text("OLD") == arguments.text("NEW")) {
        return Status::Bad; // what is wrong with the one is wrong with the other
    }
    Side now(arguments.text("NEW"), root);
    const std::unique_ptr<Output> output = old.isGood() && now.isGood() ? Output::open(arguments) : nullptr;
    if (!output) {
        return Status::Bad;
    }
    const BilledPlan before = old.compute();
    const BilledPlan after = now.compute();
    remarkOnBills(old, now);
    const std::vector<BillChange> changes = diffBills(before, after);
    if (arguments.text("--format") == "json") {
        writeDiffJson(changes, output->sink());
    } else {
        writeText(before, after, changes, arguments, output->sink());
    }
    const Status written = output->finish();
    return written == Status::Good && !changes.empty() ? Status::Found : written;
}

} // namespace planner
