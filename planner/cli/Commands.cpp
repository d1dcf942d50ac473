#include "planner/cli/Commands.h"

#include "planner/bill/BillFormats.h"
#include "planner/questions/check/Check.h"

#include "VXMBomInfrastructure/nodes/VXMFastenerTypes.h"

namespace planner {

namespace {

const Parameter kPlan{"PLAN", "Plan file, - for standard input", Value::Plan};
const Parameter kTextOrJson{"--format", "text for people, json for programs", Value::OneOf, "FORMAT", {"text", "json"},
                            "text"};

Parameter outputTo(const char* help) {
    return {.name = "--output", .help = help, .value = Value::File, .valueName = "FILE", .letter = 'o'};
}

Parameter root() {
    return {"--root", "Activity or resource to analyse; the process by default", Value::Text, "ID"};
}

std::vector<std::string> formatNames() {
    std::vector<std::string> names;
    names.reserve(kFormats.size() + 1);
    for (const NamedFormat& format : kFormats) {
        names.emplace_back(format.name);
    }
    names.emplace_back("xlsx");
    return names;
}

std::vector<std::string> fastenerChoices() {
    std::vector<std::string> choices{"all", "none"};
    for (const VXMFastenerType& type : VXMFastenerTypes) {
        choices.emplace_back(type.name);
    }
    return choices;
}

std::vector<std::string> checkCodes() {
    std::vector<std::string> codes;
    codes.reserve(kCheckRules.size());
    for (const CheckRule& rule : kCheckRules) {
        codes.emplace_back(rule.word);
    }
    return codes;
}

/// What every analysis can be asked for, and then what stands behind it.
std::vector<Parameter> analysis(std::vector<Parameter> more) {
    std::vector<Parameter> options{
        root(),
        {"--legacy", "Use the legacy algorithm"},
        {"--fasteners", "Fastener types to show: all, none, or names as Rivet,Stud", Value::SomeOf, "TYPES",
         fastenerChoices(), "all"},
        {"--unassigned-fasteners", "Show fasteners that aren't assigned as well"},
    };
    options.insert(options.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
    return options;
}

std::vector<Command> makeTable() {
    return {
        {"bom",
         "Prints the manufacturing bill of materials of a plan",
         {kPlan},
         analysis({
             {"--at", "Step by id or name: the bill when it is finished", Value::Text, "STEP"},
             {"--format", "tree for people; xml, json or csv for programs; xlsx, a spreadsheet", Value::OneOf, "FORMAT",
              formatNames(), "tree"},
             {"--max-nodes",
              "Most nodes to make for steps on several paths, a whole number; by default what half of the free memory "
              "holds",
              Value::Text, "N"},
             outputTo("File to write; standard output by default and for -"),
             {"--trace", "Write the trace of the run to a file, - for standard error", Value::File, "FILE"},
         }),
         runBom,
         "A line on standard error says so when steps add nothing to the bill because no way leads from them to the "
         "end of the flow, and why a bill is empty.\n"},
        {"flow",
         "Draws the flow of a plan",
         {kPlan},
         {
             root(),
             {"--format",
              "svg, a picture; dot, the language of Graphviz",
              Value::OneOf,
              "FORMAT",
              {"dot", "svg"},
              "dot"},
             outputTo("File to write; standard output by default and for -"),
         },
         runFlow,
         "Steps on no way to the end of the flow are pale, links that form a loop are red, a ring marks the end.\n"},
        {"check",
         "Says what is wrong in a plan though its file is good",
         {kPlan},
         {
             root(),
             kTextOrJson,
             {"--fail-on", "Codes that count for the exit status; all of them by default", Value::SomeOf, "CODES",
              checkCodes()},
             outputTo("File to write; standard output by default and for -"),
         },
         runCheck,
         "Exit status 0 when nothing was found, 1 when something was.\n"},
        {"explain",
         "Says of items whether they are in the bill, where, and why",
         {kPlan, {.name = "ITEM", .help = "Item by id or name", .value = Value::Text, .takesSeveral = true}},
         analysis({
             kTextOrJson,
             outputTo("File to write; standard output by default and for -"),
         }),
         runExplain,
         "Every step that lists the item is shown in the order of the flow, with what became of that. A name that "
         "several items have stands for all of them.\n"},
        {"kits",
         "Prints what has to be at each station or step",
         {kPlan},
         analysis({
             {"--by", "Places that the kits are for", Value::OneOf, "PLACE", {"station", "step"}, "station"},
             {"--structure", "Show the structure of what is brought in"},
             {"--format",
              "text for people; json for programs; xlsx, a spreadsheet",
              Value::OneOf,
              "FORMAT",
              {"text", "json", "xlsx"},
              "text"},
             outputTo("File to write; standard output by default and for -"),
         }),
         runKits,
         "A step outside all stations belongs to what it stands in directly below the root. The sums over all kits are "
         "held against the bill, and what doesn't add up is listed with the reason.\n"},
        {"diff",
         "Tells what is different in the bill of another version of a plan, and which edits stand behind it",
         {{"OLD", "Plan file, - for standard input", Value::Plan}, {"NEW", "Plan file likewise", Value::Plan}},
         {
             root(),
             kTextOrJson,
             outputTo("File to write; standard output by default and for -"),
         },
         runDiff,
         "Exit status 0 when the bills are equal, 1 when they aren't. /dev/null stands for no plan, so that git "
         "difftool can hand over files that came or went.\n"},
        {"report",
         "Writes a page for a browser: the bill with search, kits, checks, the flow",
         {kPlan},
         analysis({outputTo("File to write, as report.html; standard output by default and for -")}),
         runReport,
         "The page needs nothing besides itself, and prints with everything opened.\n"},
        {"fmt",
         "Writes a plan in the standard form of its file",
         {kPlan},
         {outputTo("File to write, which may be PLAN itself; standard output by default and for -")},
         runFmt},
        {"completion",
         "Prints what teaches a shell the words of this command line",
         {{"SHELL", "Shell to teach", Value::OneOf, "NAME", {"bash", "zsh", "fish"}}},
         {},
         runCompletion,
         "For the shell that runs: eval \"$(planner completion bash)\", or planner completion fish | source.\n"},
        {"man", "Prints the manual page, as man reads it", {}, {}, runMan},
    };
}

} // namespace

const std::vector<Command>& commands() {
    static const std::vector<Command> table = makeTable();
    return table;
}

} // namespace planner
