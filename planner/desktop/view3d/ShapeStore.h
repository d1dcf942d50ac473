#pragma once

#include "planner/desktop/view3d/Solid.h"

#include "QORPlatform/visualization/QORI3DGeoVisu.h"

#include <gp_Trsf.hxx>

#include <memory>
#include <string>
#include <unordered_map>

namespace planner::desktop {

class StepFile;

/// Makes solids, equal shapes once for all views: whoever shows one finds the facets that another view has made of it.
class ShapeStore {
public:
    ShapeStore();
    ~ShapeStore();

    /// Equal for equal shapes. A file counts with the time of its last change.
    static std::string keyOf(const QORGeoShape& shape);

    /// The solid of a shape, kept as long as somebody holds it. Raises std::runtime_error or Standard_Failure when it
    /// can't be made.
    std::shared_ptr<const Solid> solid(const QORGeoShape& shape);

private:
    Solid make(const QORGeoShape& shape);
    const StepFile& file(const std::string& path);

    struct ReadFile {
        std::string stamp;
        std::unique_ptr<StepFile> file;
        std::string fault;
    };

    std::unordered_map<std::string, std::weak_ptr<const Solid>> solids_;
    std::unordered_map<std::string, ReadFile> files_;
};

/// The place as a transformation.
gp_Trsf transformationOf(const QORGeoPlace& place);

} // namespace planner::desktop
