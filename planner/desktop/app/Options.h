#pragma once

#include <optional>
#include <string>

namespace planner::desktop {

/// What `planner-desktop` is asked to do: to open a plan, or to print a text, or what is wrong with the command line.
struct Options {
    std::optional<std::string> plan;
    int mode = 3; ///< display mode of the first window: 1 the tree, 2 the items, 3 both
    std::optional<std::string> root;
    std::optional<std::string> screenshot;
    std::optional<std::string> print;
    std::string error;
};

Options parseOptions(int argc, const char* const* argv);

} // namespace planner::desktop
