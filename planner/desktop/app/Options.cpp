#include "planner/desktop/app/Options.h"

#include <CLI/CLI.hpp>

namespace planner::desktop {

namespace {

void addOptions(CLI::App& app, Options& options) {
    app.add_option("PLAN", options.plan, "Plan file to open");
    app.add_option("--mode", options.mode, "What the first window shows: 1 the bill, 2 its items in space, 3 both")
        ->check(CLI::Range(1, 3))
        ->type_name("N")
        ->capture_default_str();
    app.add_option("--root", options.root,
                   "Activity or resource of that window; by default the process, or the first resource where the "
                   "process is empty")
        ->type_name("ID");
    app.add_option("--screenshot", options.screenshot, "Write a picture of the window to a file (PNG) and exit")
        ->type_name("FILE");
}

} // namespace

Options parseOptions(int argc, const char* const* argv) {
    CLI::App app("Process plans and their bills of materials, side by side", "planner-desktop");
    app.set_version_flag("--version", "planner-desktop " PLANNER_VERSION, "Print the version");
    Options options;
    addOptions(app, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForVersion& version) {
        options.print = std::string(version.what()) + '\n';
    } catch (const CLI::CallForHelp&) {
        options.print = app.help();
    } catch (const CLI::ParseError& error) {
        options.error = std::string(error.what()) + "; see planner-desktop --help";
    }
    return options;
}

} // namespace planner::desktop
