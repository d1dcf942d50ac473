#include "planner/cli/Commands.h"
#include "planner/cli/Output.h"
#include "planner/cli/Subject.h"

#include "planner/file/SourceText.h"
#include "planner/model/FastenerSettings.h"
#include "planner/questions/check/CheckFormats.h"
#include "planner/report/Report.h"

#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"

namespace planner {

namespace {

void addBill(const Subject& subject, Report& report) {
    const FastenerSettings settings;
    const std::unique_ptr<VXMBomGenerator> generator = VXMMakeBomGenerator(subject.root);
    const DOM_Document document = generator->GetBom(0);
    report.bill = readBill(document, generator->GetPreviewObjects());
    report.remark = remarkOnBill(*subject.plan, *subject.root, *generator, report.bill.empty());
    report.findings = checkPlan(*subject.plan, *subject.root, *generator, report.bill);
}

void addKits(const Subject& subject, Report& report) {
    try {
        report.kits = kitsOf(*subject.plan, RecordedBill(*subject.root), KitsBy::Station);
    } catch (const TooManyOccurrences& error) {
        report.kitsNote = error.what();
    }
}

/// The whole flow; where that is too large to be drawn, what stands directly in the root.
void addFlow(FlowObject& root, Report& report) {
    report.flow = drawFlow(readWholeFlow(root), root);
    if (!report.flow.error.empty()) {
        report.flowNote = report.flow.error;
        report.flow = drawFlow(readFlow(root, wayToEnd(root), nullptr, static_cast<std::size_t>(-1)), root);
        report.flowNote += report.flow.error.empty() ? "; this is what stands directly in " + root.name() : "";
    }
}

} // namespace

Status runReport(const Arguments& arguments) {
    std::string text;
    const Subject subject = openSubject(arguments, &text);
    const std::unique_ptr<Output> output = subject.root ? Output::openBeside(arguments) : nullptr;
    if (!output) {
        return Status::Bad;
    }
    Report report{.root = *subject.root, .file = sourceName(arguments.text("PLAN"))};
    addBill(subject, report);
    addKits(subject, report);
    addFlow(static_cast<FlowObject&>(*subject.root), report);
    report.places = placesOfObjects(text, idsOf(report.findings));
    writeReport(report, output->sink());
    return output->finish();
}

} // namespace planner
