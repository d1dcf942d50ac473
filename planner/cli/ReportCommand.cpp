#include "planner/cli/Commands.h"
#include "planner/cli/Output.h"
#include "planner/cli/Subject.h"

#include "planner/bill/MakeGenerator.h"
#include "planner/file/SourceText.h"
#include "planner/model/FastenerSettings.h"
#include "planner/questions/check/CheckFormats.h"
#include "planner/report/Report.h"

namespace planner {

namespace {

/// Bill, findings and kits, from one computation where the record that kits need can be had.
void addAnswers(const Subject& subject, Report& report) {
    std::unique_ptr<RecordedBill> recorded;
    try {
        recorded = std::make_unique<RecordedBill>(*subject.root);
    } catch (const TooManyOccurrences& error) {
        report.kitsNote = error.what();
    }
    const FastenerSettings settings;
    const std::unique_ptr<VXMBomGenerator> unrecorded = recorded ? nullptr : makeGenerator(subject.root);
    VXMBomGenerator& generator = recorded ? recorded->generator() : *unrecorded;
    const DOM_Document document = generator.GetBom(0);
    report.bill = readBill(document, generator.GetPreviewObjects());
    report.remark = remarkOnBill(*subject.plan, *subject.root, generator, report.bill.empty());
    report.findings = checkPlan(*subject.plan, *subject.root, generator, report.bill);
    if (recorded) {
        report.kits = kitsOf(*subject.plan, *recorded, KitsBy::Station);
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
    addAnswers(subject, report);
    addFlow(static_cast<FlowObject&>(*subject.root), report);
    report.places = placesOfObjects(text, idsOf(report.findings));
    writeReport(report, output->sink());
    return output->finish();
}

} // namespace planner
