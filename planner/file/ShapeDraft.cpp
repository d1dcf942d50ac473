#include "planner/file/ShapeDraft.h"

#include <algorithm>

namespace planner {

namespace {

std::string formNames() {
    std::vector<std::string_view> names(kForms.size());
    std::transform(kForms.begin(), kForms.end(), names.begin(), [](const FormRule& form) { return form.key; });
    return alternatives(names);
}

const FormRule* findForm(Key key) {
    const auto form =
        std::find_if(kForms.begin(), kForms.end(), [&](const FormRule& each) { return each.key == keyName(key); });
    return form == kForms.end() ? nullptr : &*form;
}

} // namespace

void ShapeDraft::keySeen(Key key, std::size_t offset, Faults& faults) {
    const FormRule* const form = findForm(key);
    if (form && hasForm_) {
        faults.addValue(offset, "a second form of the shape; expected one of " + formNames());
    } else if (form) {
        hasForm_ = true;
        shape_.form = form->form;
    }
}

void ShapeDraft::text(Key key, std::string value, std::size_t offset, Faults& faults) {
    if (key == Key::Step && value.empty()) {
        faults.addValue(offset, kNoStepFile);
    } else if (key == Key::Step) {
        shape_.file = std::move(value);
    } else {
        shape_.part = std::move(value);
    }
}

void ShapeDraft::numbers(Key key, std::vector<double> values, std::size_t offset, Faults& faults) {
    if (const auto fault = sizesFault(*findForm(key), values)) {
        faults.addValue(offset, *fault);
    }
    shape_.sizes = std::move(values);
}

Shape ShapeDraft::take(std::size_t offset, Faults& faults) {
    if (!hasForm_) {
        faults.addValue(offset, "a shape without a form; expected one of " + formNames());
    } else if (shape_.part && shape_.form != Shape::Form::Step) {
        faults.addValue(offset, kPartWithoutFile);
    }
    return std::move(shape_);
}

} // namespace planner
