#include "planner/cli/Commands.h"
#include "planner/cli/Output.h"
#include "planner/cli/Recording.h"
#include "planner/cli/SheetOutput.h"
#include "planner/cli/Subject.h"

#include "planner/questions/kits/KitsFormats.h"
#include "planner/sheet/KitsSheet.h"

#include <unistd.h>

namespace planner {

Status runKits(const Arguments& arguments) {
    const Subject subject = openSubject(arguments);
    const std::unique_ptr<Output> output = subject.root ? Output::openBeside(arguments) : nullptr;
    if (!output) {
        return Status::Bad;
    }
    const std::unique_ptr<RecordedBill> bill = recordBill(subject);
    if (!bill) {
        return Status::Bad;
    }
    const KitsBy by = arguments.text("--by") == "step" ? KitsBy::Step : KitsBy::Station;
    const Kits kits = kitsOf(*subject.plan, *bill, by);
    if (arguments.text("--format") == "xlsx") {
        return writeWorkbook(*output, rowsOfKits(kits), "rows",
                             [&](Workbook& workbook) { addKitsSheet(workbook, kits, subject.root->name()); });
    }
    const KitStructure structure = arguments.has("--structure") ? KitStructure::Shown : KitStructure::LeftOut;
    if (arguments.text("--format") == "json") {
        writeKitsJson(kits, *subject.root, structure, output->sink());
    } else {
        TextOutput text(output->sink(), !arguments.has("--output") && takesColours(STDOUT_FILENO));
        writeKitsText(kits, structure, text);
    }
    return output->finish();
}

} // namespace planner
