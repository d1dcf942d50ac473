#include "planner/edit/Checks.h"

#include "planner/edit/EditError.h"
#include "planner/edit/PlanEditor.h"
#include "planner/file/JsonText.h"
#include "planner/file/PlanGrammar.h"
#include "planner/file/PlanReader.h"
#include "planner/file/SourceText.h"
#include "planner/model/Contents.h"

#include <algorithm>

namespace planner {

using Fault = EditError::Fault;

void checkText(std::string_view text) {
    if (const auto fault = findEncodingFault(text)) {
        throw EditError(Fault::BadText, "the text " + inQuotes(text) + " can't be kept: " + fault->message);
    }
    if (holdsControlCharacter(text)) {
        throw EditError(Fault::BadText, "the text " + inQuotes(text) + kControlCharacterText);
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

void checkShape(const Shape& shape) {
    if (const auto fault = sizesFault(ruleOf(shape.form), shape.sizes)) {
        throw EditError(Fault::BadValue, *fault);
    }
    if (shape.part && shape.form != Shape::Form::Step) {
        throw EditError(Fault::BadValue, kPartWithoutFile);
    }
    if (shape.form == Shape::Form::Step && shape.file.empty()) {
        throw EditError(Fault::BadValue, kNoStepFile);
    }
    checkText(shape.file);
    checkText(shape.part.value_or(""));
}

void checkPlace(const Place& place) {
    if (const auto fault = placeFault(place.numbers)) {
        throw EditError(Fault::BadValue, *fault);
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

OptionalList<Activity*>& activitiesFor(FlowObject& container) {
    OptionalList<Activity*>* const list = activitiesIn(container);
    if (!list) {
        throw EditError(Fault::WrongSort,
                        quoted(container) + " is a resource; expected an activity or a behaviour to hold activities");
    }
    return *list;
}

void tidyNotes(std::string& json) {
    if (json.empty()) {
        return;
    }
    if (const auto fault = orderNotes(json)) {
        throw EditError(Fault::BadValue, *fault);
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
    if (object.sort() == Sort::Behaviour && object.id().empty()) {
        const ModelObject* const resource = static_cast<const FlowObject&>(object).container();
        return resource ? "the behaviour of " + quoted(*resource) : "a behaviour";
    }
    return inQuotes(object.name().empty() ? object.id() : object.name());
}

std::string quoted(const std::optional<std::string>& name, const std::string& id) {
    return inQuotes(name.value_or(id));
}

} // namespace planner
