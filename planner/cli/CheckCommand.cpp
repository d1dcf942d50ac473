#include "planner/cli/Commands.h"
#include "planner/cli/Output.h"
#include "planner/cli/Subject.h"

#include "planner/file/SourceText.h"
#include "planner/questions/check/CheckFormats.h"

#include <algorithm>
#include <unistd.h>

namespace planner {

namespace {

/// Whether there is a finding of a code that --fail-on names, or any when it isn't given.
bool fails(const std::vector<Finding>& findings, const Arguments& arguments) {
    const std::vector<std::string> codes = arguments.values("--fail-on");
    return std::any_of(findings.begin(), findings.end(), [&](const Finding& finding) {
        return !arguments.has("--fail-on") ||
               std::find(codes.begin(), codes.end(), ruleOf(finding.code).word) != codes.end();
    });
}

} // namespace

Status runCheck(const Arguments& arguments) {
    std::string text;
    const Subject subject = openSubject(arguments, &text);
    const std::unique_ptr<Output> output = subject.root ? Output::openBeside(arguments) : nullptr;
    if (!output) {
        return Status::Bad;
    }
    const std::vector<Finding> findings = checkPlan(*subject.plan, *subject.root);
    const CheckReport report{*subject.root, sourceName(arguments.text("PLAN")), findings,
                             placesOfObjects(text, idsOf(findings))};
    if (arguments.text("--format") == "json") {
        writeCheckJson(report, output->sink());
    } else {
        TextOutput lines(output->sink(), !arguments.has("--output") && takesColours(STDOUT_FILENO));
        writeCheckText(report, lines);
    }
    const Status written = output->finish();
    return written == Status::Good && fails(findings, arguments) ? Status::Found : written;
}

} // namespace planner
