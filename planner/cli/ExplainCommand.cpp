#include "planner/cli/Commands.h"
#include "planner/cli/Output.h"
#include "planner/cli/Recording.h"
#include "planner/cli/Subject.h"

#include "planner/file/JsonText.h"
#include "planner/file/SourceText.h"
#include "planner/questions/explain/ExplainFormats.h"
#include "planner/text/Words.h"

#include <algorithm>
#include <unistd.h>

namespace planner {

namespace {

/// The items that the arguments name; nothing after saying which of the names is none.
std::vector<const ModelObject*> chooseItems(const Plan& plan, const Arguments& arguments) {
    std::vector<const ModelObject*> chosen;
    for (const std::string& name : arguments.values("ITEM")) {
        const std::vector<const ModelObject*> called = itemsCalled(plan, name);
        if (called.empty()) {
            const ModelObject* const other = plan.find(name);
            complain("ITEM names " + inQuotes(name) + ", which is " +
                     (other ? sortText(other->sort()) : "not in " + sourceName(arguments.text("PLAN"))) +
                     "; expected the id or the name of an item");
            return {};
        }
        if (called.size() > 1) {
            complain(inQuotes(name) + " is the name of " + counted(called.size(), "item") + "; each is explained");
        }
        for (const ModelObject* item : called) {
            if (std::find(chosen.begin(), chosen.end(), item) == chosen.end()) {
                chosen.push_back(item);
            }
        }
    }
    return chosen;
}

} // namespace

Status runExplain(const Arguments& arguments) {
    const Subject subject = openSubject(arguments);
    if (!subject.root) {
        return Status::Bad;
    }
    const std::vector<const ModelObject*> items = chooseItems(*subject.plan, arguments);
    const std::unique_ptr<Output> output = items.empty() ? nullptr : Output::openBeside(arguments);
    if (!output) {
        return Status::Bad;
    }
    const std::unique_ptr<RecordedBill> bill = recordBill(subject);
    if (!bill) {
        return Status::Bad;
    }
    const std::vector<Explanation> explanations = explain(*subject.plan, *bill, items);
    if (arguments.text("--format") == "json") {
        writeExplanationsJson(*bill, explanations, output->sink());
    } else {
        TextOutput text(output->sink(), !arguments.has("--output") && takesColours(STDOUT_FILENO));
        writeExplanationsText(*bill, explanations, text);
    }
    return output->finish();
}

} // namespace planner
