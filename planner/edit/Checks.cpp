#include "planner/edit/Checks.h"

#include "planner/edit/EditError.h"
#include "planner/edit/PlanEditor.h"
#include "planner/file/JsonText.h"
#include "planner/file/SourceText.h"

#include <algorithm>
#include <cmath>

namespace planner {

using Fault = EditError::Fault;

void checkText(std::string_view text) {
    if (const auto fault = findEncodingFault(text)) {
        throw EditError(Fault::BadText, "the text " + inQuotes(text) + " can't be kept: " + fault->message);
    }
    const bool isBad = std::any_of(text.begin(), text.end(), [](char letter) {
        return static_cast<unsigned char>(letter) < 0x20 && letter != '\t' && letter != '\n' && letter != '\r';
    });
    if (isBad) {
        throw EditError(Fault::BadText, "the text " + inQuotes(text) + " holds a control character");
    }
}

void checkNewId(const Plan& plan, std::string_view id) {
    if (id.empty()) {
        throw EditError(Fault::EmptyId, "an empty id; expected a text of one character or more");
    }
    checkText(id);
    if (const ModelObject* const other = plan.find(id)) {
        throw EditError(Fault::TakenId, "the id " + inQuotes(id) + " is that of " + sortText(other->sort()) +
                                            " already; expected one of its own");
    }
}

void checkStands(const Plan& plan, const ModelObject& object) {
    bool isHere = object.standsInPlan();
    if (isHere && !object.id().empty()) {
        isHere = plan.find(object.id()) == &object;
    } else if (isHere && object.sort() == Sort::Behaviour) {
        const auto* const resource = static_cast<const FlowObject&>(object).container();
        isHere = resource && plan.find(resource->id()) == resource;
    } else {
        isHere = isHere && plan.process() == &object;
    }
    if (!isHere) {
        throw EditError(Fault::UnknownObject, quoted(object) + " is not in this plan");
    }
}

namespace {

bool areFinite(const std::vector<double>& numbers) {
    return std::all_of(numbers.begin(), numbers.end(), [](double number) { return std::isfinite(number); });
}

} // namespace

void checkShape(const Shape& shape) {
    const auto rule =
        std::find_if(kForms.begin(), kForms.end(), [&](const FormRule& each) { return each.form == shape.form; });
    if (shape.sizes.size() != rule->sizes) {
        throw EditError(Fault::BadValue, '"' + std::string(rule->key) + "\" has " + std::to_string(shape.sizes.size()) +
                                             " numbers; expected " + std::to_string(rule->sizes));
    }
    if (!areFinite(shape.sizes) ||
        std::any_of(shape.sizes.begin(), shape.sizes.end(), [](double size) { return size <= 0; })) {
        throw EditError(Fault::BadValue, '"' + std::string(rule->key) + "\" has a size that isn't above 0");
    }
    if (shape.part && shape.form != Shape::Form::Step) {
        throw EditError(Fault::BadValue, "a \"part\" in a shape that is no file");
    }
    checkText(shape.file);
    checkText(shape.part.value_or(""));
}

void checkPlace(const Place& place) {
    const std::size_t count = place.numbers.size();
    if ((count != 3 && count != 6) || !areFinite(place.numbers)) {
        throw EditError(Fault::BadValue, "a place of " + std::to_string(count) +
                                             " numbers; expected 3 finite ones, or 6 with the turns");
    }
}

void checkNoCycle(const FlowObject& object, const ModelObject* container) {
    for (const ModelObject* above = container; above; above = static_cast<const FlowObject*>(above)->container()) {
        if (above == &object) {
            throw EditError(Fault::Cycle,
                            quoted(object) + " can't stand in " + quoted(*container) + ", which is itself or below it");
        }
    }
}

void checkIsOccurrence(const Item& item) {
    if (!item.answersProduct()) {
        throw EditError(Fault::WrongSort,
                        quoted(item) + R"( can't be a child; expected a product, or an assembly with "children")");
    }
}

std::size_t checkedPosition(std::size_t position, std::size_t size) {
    if (position != kAtEnd && position > size) {
        throw EditError(Fault::NoSuchPlace,
                        "position " + std::to_string(position) + " in a list of " + std::to_string(size));
    }
    return std::min(position, size);
}

std::string quoted(const ModelObject& object) {
    return inQuotes(object.name().empty() ? object.id() : object.name());
}

std::string quoted(const std::optional<std::string>& name, const std::string& id) {
    return inQuotes(name.value_or(id));
}

} // namespace planner
