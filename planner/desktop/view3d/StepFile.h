#pragma once

#include "planner/desktop/view3d/Solid.h"

#include <optional>
#include <string>
#include <vector>

namespace planner::desktop {

/// The parts of a STEP file, each with its names, and its geometry where it stands in the file.
class StepFile {
public:
    /// Reads the file. Raises std::runtime_error, which names the file and what is wrong with it.
    explicit StepFile(const std::string& path);

    /// The part of a name, with all below it when it is an assembly; the whole file for an empty name. The name may be
    /// that of the product or of its place in an assembly, and the first one in the file counts. Raises
    /// std::runtime_error when there is none.
    Solid part(const std::string& name) const;

private:
    struct Node {
        int depth;
        std::string place;
        std::string product;
        TopoDS_Shape shape; ///< null for an assembly, whose parts follow
        std::optional<Quantity_Color> colour;
    };

    std::string names() const;

    std::string path_;
    std::vector<Node> nodes_; ///< each before those below it
};

} // namespace planner::desktop
