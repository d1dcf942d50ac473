#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace planner {

/// A form that an item is drawn as. Sizes are millimetres.
struct Shape {
    enum class Form {
        Box,      ///< lengths along x, y and z
        Cylinder, ///< radius, height
        Sphere,   ///< radius
        Step      ///< a part of a file
    };

    Form form = Form::Box;
    std::vector<double> sizes;       ///< as many as the form has, none for a file
    std::string file;                ///< path, relative to the plan's folder
    std::optional<std::string> part; ///< name of the part in the file; the whole file without one
    std::string notes;               ///< JSON text, empty when there are none
};

/// A form, its key in the plan file, and how many sizes it has.
struct FormRule {
    Shape::Form form;
    std::string_view key;
    std::size_t sizes;
};
inline constexpr std::array<FormRule, 4> kForms{{{Shape::Form::Box, "box", 3},
                                                 {Shape::Form::Cylinder, "cylinder", 2},
                                                 {Shape::Form::Sphere, "sphere", 1},
                                                 {Shape::Form::Step, "step", 0}}};
constexpr const FormRule& ruleOf(Shape::Form form) {
    return kForms[static_cast<std::size_t>(form)];
}

/// Where an item stands: x, y, z in millimetres, then, when given, the turns about the three axes in degrees.
struct Place {
    std::vector<double> numbers; ///< 3 or 6
};

struct Geometry {
    std::optional<Shape> shape;
    std::optional<Place> place;
};

} // namespace planner
