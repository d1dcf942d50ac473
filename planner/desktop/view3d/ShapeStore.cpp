#include "planner/desktop/view3d/ShapeStore.h"

#include "planner/desktop/view3d/StepFile.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <gp.hxx>
#include <gp_Ax1.hxx>

#include <filesystem>
#include <numbers>
#include <stdexcept>

namespace planner::desktop {

namespace {

std::string textOf(const QORUnicodeString& text) {
    return static_cast<std::string>(text);
}

/// Another one after the file has changed.
std::string stampOf(const std::string& path) {
    std::error_code error;
    const auto time = std::filesystem::last_write_time(path, error);
    return error ? "" : std::to_string(time.time_since_epoch().count());
}

} // namespace

ShapeStore::ShapeStore() = default;
ShapeStore::~ShapeStore() = default;

std::string ShapeStore::keyOf(const QORGeoShape& shape) {
    std::string key = std::to_string(shape.kind);
    if (shape.kind == QORGeoShape::StepFile) {
        return key + '|' + textOf(shape.part) + '|' + textOf(shape.file) + '|' + stampOf(textOf(shape.file));
    }
    for (const double size : shape.sizes) {
        key += '|' + std::to_string(size);
    }
    return key;
}

std::shared_ptr<const Solid> ShapeStore::solid(const QORGeoShape& shape) {
    std::weak_ptr<const Solid>& kept = solids_[keyOf(shape)];
    std::shared_ptr<const Solid> solid = kept.lock();
    if (!solid) {
        solid = std::make_shared<const Solid>(make(shape));
        kept = solid;
    }
    return solid;
}

Solid ShapeStore::make(const QORGeoShape& shape) {
    switch (shape.kind) {
    case QORGeoShape::Box:
        return {BRepPrimAPI_MakeBox(shape.sizes[0], shape.sizes[1], shape.sizes[2]).Shape(), {}};
    case QORGeoShape::Cylinder:
        return {BRepPrimAPI_MakeCylinder(shape.sizes[0], shape.sizes[1]).Shape(), {}};
    case QORGeoShape::Sphere:
        return {BRepPrimAPI_MakeSphere(shape.sizes[0]).Shape(), {}};
    case QORGeoShape::StepFile:
        return file(textOf(shape.file)).part(textOf(shape.part));
    case QORGeoShape::None:
        break;
    }
    throw std::runtime_error("there is nothing to see of it");
}

/// A file is read once, be it good or bad, until it changes.
const StepFile& ShapeStore::file(const std::string& path) {
    const std::string stamp = stampOf(path);
    ReadFile& read = files_[path];
    if ((!read.file && read.fault.empty()) || read.stamp != stamp) {
        read = {stamp, nullptr, ""};
        try {
            read.file = std::make_unique<StepFile>(path);
        } catch (const std::runtime_error& fault) {
            read.fault = fault.what();
        }
    }
    if (!read.file) {
        throw std::runtime_error(read.fault);
    }
    return *read.file;
}

gp_Trsf transformationOf(const QORGeoPlace& place) {
    gp_Trsf whole;
    whole.SetTranslation(gp_Vec(place.moved[0], place.moved[1], place.moved[2]));
    const gp_Ax1 axes[] = {gp::OX(), gp::OY(), gp::OZ()};
    for (const int axis : {2, 1, 0}) {
        gp_Trsf turn;
        turn.SetRotation(axes[axis], place.turned[axis] * std::numbers::pi / 180);
        whole.Multiply(turn);
    }
    return whole;
}

} // namespace planner::desktop
