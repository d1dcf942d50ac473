// What an item shows of itself in space.

#include "planner/model/Plan.h"

#include <algorithm>
#include <filesystem>

namespace planner {

namespace {

QORGeoShape::Kind kindOf(Shape::Form form) {
    switch (form) {
    case Shape::Form::Box:
        return QORGeoShape::Box;
    case Shape::Form::Cylinder:
        return QORGeoShape::Cylinder;
    case Shape::Form::Sphere:
        return QORGeoShape::Sphere;
    case Shape::Form::Step:
        break;
    }
    return QORGeoShape::StepFile;
}

} // namespace

QORStatus Item::GetShape(QORGeoShape& oShape) const {
    if (!geometry().shape) {
        return QOR_FAILED;
    }
    const Shape& shape = *geometry().shape;
    oShape = QORGeoShape();
    oShape.kind = kindOf(shape.form);
    std::copy_n(shape.sizes.begin(), std::min<std::size_t>(shape.sizes.size(), 3), oShape.sizes);
    if (shape.form == Shape::Form::Step) {
        oShape.file = platformText(pathOf(shape.file));
        oShape.part = platformText(shape.part.value_or(""));
    }
    return QOR_OK;
}

QORStatus Item::GetPlace(QORGeoPlace& oPlace) const {
    if (!geometry().shape) {
        return QOR_FAILED;
    }
    oPlace = QORGeoPlace();
    if (const auto& place = geometry().place) {
        const std::vector<double>& numbers = place->numbers;
        std::copy_n(numbers.begin(), 3, oPlace.moved);
        std::copy(numbers.begin() + 3, numbers.end(), oPlace.turned);
    }
    return QOR_OK;
}

/// The path from here; a path in the file is relative to the plan's folder.
std::string Item::pathOf(const std::string& file) const {
    const bool isHere = !plan_ || plan_->folder.empty();
    return isHere ? file : (std::filesystem::path(plan_->folder) / file).string();
}

} // namespace planner
