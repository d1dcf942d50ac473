#pragma once

#include "planner/bill/BillFormats.h"

#include "VXMBomInfrastructure/nodes/VXMFastenerTypes.h"

#include <bitset>
#include <optional>
#include <string>

namespace planner {

/// Which of the fastener types a bill shows, by their places in the library's table.
using FastenerChoice = std::bitset<VXMFastenerTypes.size()>;

/// What `planner bom` is asked to do.
struct BomOptions {
    std::string plan;
    std::optional<std::string> root;
    Format format = Format::Tree;
    bool legacy = false;
    FastenerChoice fasteners = FastenerChoice().set(); ///< all of them
    bool unassignedFasteners = false;
    std::optional<std::string> trace;
};

/// What `planner fmt` is asked to do.
struct FmtOptions {
    std::string plan;
    std::optional<std::string> output;
};

/// A command line: one of the commands, or a text to print, or what is wrong with it.
struct CommandLine {
    std::optional<BomOptions> bom;
    std::optional<FmtOptions> fmt;
    std::optional<std::string> print;
    std::string error;
};

CommandLine parseCommandLine(int argc, const char* const* argv);

} // namespace planner
