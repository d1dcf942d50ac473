#include "planner/cli/Options.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <vector>

namespace planner {

namespace {

/// An empty name is most often a variable of a script that was never set.
std::string complaintOnName(const std::string& name) {
    return name.empty() ? "the name of the file is empty; expected a path or -" : std::string();
}

constexpr const char* kPlanHelp = "Plan file, - for standard input";

Format formatOf(const std::string& name) {
    for (const NamedFormat& each : kFormats) {
        if (name == each.name) {
            return each.format;
        }
    }
    return Format::Tree;
}

std::vector<std::string> formatNames() {
    std::vector<std::string> names(kFormats.size());
    std::transform(kFormats.begin(), kFormats.end(), names.begin(), [](const NamedFormat& each) { return each.name; });
    return names;
}

CLI::App* addBom(CLI::App& app, BomOptions& options, std::string& format) {
    CLI::App* const bom = app.add_subcommand("bom", "Prints the manufacturing bill of materials of a plan");
    bom->add_option("PLAN", options.plan, kPlanHelp)->required()->check(complaintOnName);
    bom->add_option("--root", options.root, "Activity or resource to analyse; the process by default")->type_name("ID");
    bom->add_option("--format", format, "tree for people; xml, json or csv for programs")
        ->check(CLI::IsMember(formatNames()))
        ->type_name("FORMAT");
    bom->add_flag("--legacy", options.legacy, "Use the legacy algorithm");
    bom->add_option("--fasteners", options.fasteners, "Fastener types to show: all, none, or names as Rivet,Stud")
        ->type_name("TYPES");
    bom->add_flag("--unassigned-fasteners", options.unassignedFasteners, "Show fasteners that aren't assigned as well");
    bom->add_option("--trace", options.trace, "Write the trace of the run to a file, - for standard error")
        ->check(complaintOnName)
        ->type_name("FILE");
    return bom;
}

CLI::App* addFmt(CLI::App& app, FmtOptions& options) {
    CLI::App* const fmt = app.add_subcommand("fmt", "Writes a plan in the standard form of its file");
    fmt->add_option("PLAN", options.plan, kPlanHelp)->required()->check(complaintOnName);
    fmt->add_option("-o,--output", options.output,
                    "File to write, which may be PLAN itself; standard output by default and for -")
        ->check(complaintOnName)
        ->type_name("FILE");
    return fmt;
}

} // namespace

CommandLine parseCommandLine(int argc, const char* const* argv) {
    CLI::App app("Manufacturing bills of materials from process plans", "planner");
    app.set_version_flag("--version", "planner " PLANNER_VERSION, "Print the version");
    app.require_subcommand(1);
    BomOptions bomOptions;
    FmtOptions fmtOptions;
    std::string format = "tree";
    const CLI::App* const bom = addBom(app, bomOptions, format);
    addFmt(app, fmtOptions);
    CommandLine line;
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForVersion& version) {
        line.print = std::string(version.what()) + '\n';
        return line;
    } catch (const CLI::CallForHelp&) {
        line.print = app.help();
        return line;
    } catch (const CLI::ParseError& error) {
        line.error = std::string(error.what()) + "; see planner --help";
        return line;
    }
    bomOptions.format = formatOf(format);
    if (bom->parsed()) {
        line.bom = std::move(bomOptions);
    } else {
        line.fmt = std::move(fmtOptions);
    }
    return line;
}

} // namespace planner
