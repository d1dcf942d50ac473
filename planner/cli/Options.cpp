#include "planner/cli/Options.h"

#include "planner/file/JsonText.h"

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

/// Letters only, all of them small: "Spot Weld" and "spot-weld" are one name.
std::string plainName(std::string_view name) {
    std::string plain;
    for (const char letter : name) {
        if (letter >= 'A' && letter <= 'Z') {
            plain += static_cast<char>(letter - 'A' + 'a');
        } else if (letter != ' ' && letter != '-' && letter != '_') {
            plain += letter;
        }
    }
    return plain;
}

std::string typeNames() {
    std::string names;
    for (const VXMFastenerType& type : VXMFastenerTypes) {
        names += (names.empty() ? "" : ", ") + std::string(type.name);
    }
    return names;
}

std::optional<std::string> addNamed(std::string_view name, FastenerChoice& shown) {
    const auto type = std::find_if(VXMFastenerTypes.begin(), VXMFastenerTypes.end(), [&](const VXMFastenerType& each) {
        return plainName(each.name) == plainName(name);
    });
    if (type == VXMFastenerTypes.end()) {
        return "--fasteners names " + inQuotes(name) + "; expected all, none, or some of " + typeNames();
    }
    shown.set(static_cast<std::size_t>(type - VXMFastenerTypes.begin()));
    return std::nullopt;
}

/// Reads "all", "none", or names separated by commas, letter case and blanks set aside. Gives what is wrong with them.
std::optional<std::string> parseFasteners(std::string_view choice, FastenerChoice& shown) {
    shown.reset();
    if (choice == "all") {
        shown.set();
        return std::nullopt;
    }
    if (choice == "none") {
        return std::nullopt;
    }
    for (;;) {
        const std::size_t comma = choice.find(',');
        if (auto error = addNamed(choice.substr(0, comma), shown)) {
            return error;
        }
        if (comma == std::string_view::npos) {
            return std::nullopt;
        }
        choice.remove_prefix(comma + 1);
    }
}

CLI::App* addBom(CLI::App& app, BomOptions& options, std::string& format, std::string& fasteners) {
    CLI::App* const bom = app.add_subcommand("bom", "Prints the manufacturing bill of materials of a plan");
    bom->add_option("PLAN", options.plan, kPlanHelp)->required()->check(complaintOnName);
    bom->add_option("--root", options.root, "Activity or resource to analyse; the process by default")->type_name("ID");
    bom->add_option("--format", format, "tree for people; xml, json or csv for programs")
        ->check(CLI::IsMember(formatNames()))
        ->type_name("FORMAT");
    bom->add_flag("--legacy", options.legacy, "Use the legacy algorithm");
    bom->add_option("--fasteners", fasteners, "Fastener types to show: all, none, or names as Rivet,Stud")
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
    std::string fasteners = "all";
    const CLI::App* const bom = addBom(app, bomOptions, format, fasteners);
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
    if (const auto error = parseFasteners(fasteners, bomOptions.fasteners)) {
        line.error = *error;
        return line;
    }
    if (bom->parsed()) {
        line.bom = std::move(bomOptions);
    } else {
        line.fmt = std::move(fmtOptions);
    }
    return line;
}

} // namespace planner
