#include "planner/file/ShapeDraft.h"

#include "planner/file/JsonText.h"

#include <algorithm>

namespace planner {

namespace {

constexpr const char* kFormNames = R"("box", "cylinder", "sphere" or "step")";

const FormRule* findForm(Key key) {
    switch (key) {
    case Key::Box:
        return &planner::kForms[0];
    case Key::Cylinder:
        return &planner::kForms[1];
    case Key::Sphere:
        return &planner::kForms[2];
    case Key::Step:
        return &planner::kForms[3];
    default:
        return nullptr;
    }
}

} // namespace

void ShapeDraft::keySeen(Key key, std::size_t offset, Faults& faults) {
    const FormRule* const form = findForm(key);
    if (form && hasForm_) {
        faults.addValue(offset, std::string("a second form of the shape; expected one of ") + kFormNames);
    } else if (form) {
        hasForm_ = true;
        shape_.form = form->form;
    }
}

void ShapeDraft::text(Key key, std::string value) {
    if (key == Key::Step) {
        shape_.file = std::move(value);
    } else {
        shape_.part = std::move(value);
    }
}

void ShapeDraft::numbers(Key key, std::vector<double> values, std::size_t offset, Faults& faults) {
    const FormRule& form = *findForm(key);
    if (values.size() != form.sizes) {
        faults.addValue(offset, '"' + std::string(form.key) + "\" has " + std::to_string(values.size()) +
                                    " numbers; expected " + std::to_string(form.sizes));
    }
    const auto bad = std::find_if(values.begin(), values.end(), [](double size) { return size <= 0; });
    if (bad != values.end()) {
        faults.addValue(offset, '"' + std::string(form.key) + "\" has the size " + jsonNumber(*bad) +
                                    "; expected sizes above 0");
    }
    shape_.sizes = std::move(values);
}

Shape ShapeDraft::take(std::size_t offset, Faults& faults) {
    if (!hasForm_) {
        faults.addValue(offset, std::string("a shape without a form; expected one of ") + kFormNames);
    } else if (shape_.part && shape_.form != Shape::Form::Step) {
        faults.addValue(offset, R"("part" in a shape that is no file; expected it beside "step")");
    }
    return std::move(shape_);
}

Place makePlace(std::vector<double> numbers, std::size_t offset, Faults& faults) {
    if (numbers.size() != 3 && numbers.size() != 6) {
        faults.addValue(offset, "\"place\" has " + std::to_string(numbers.size()) +
                                    " numbers; expected 3, or 6 with the turns");
    }
    return {std::move(numbers)};
}

} // namespace planner
