#pragma once

#include "planner/model/Plan.h"

#include <string>
#include <string_view>

namespace planner {

// What an edit demands of what it is given. Each raises EditError when it isn't so.

/// The text is UTF-8 without control characters other than tab and line end.
void checkText(std::string_view text);

/// The id is such a text, not empty, and nobody's in the plan.
void checkNewId(const Plan& plan, std::string_view id);

/// The object stands in the plan.
void checkStands(const Plan& plan, const ModelObject& object);

/// The shape has the sizes of its form, the place its numbers.
void checkShape(const Shape& shape);
void checkPlace(const Place& place);

/// The container isn't the object, nor anywhere below it.
void checkNoCycle(const FlowObject& object, const ModelObject* container);

/// The list of the activities that stand in the container, which is an activity or a behaviour.
OptionalList<Activity*>& activitiesFor(FlowObject& container);

/// Puts a JSON value, or an empty text, into the form in which a plan keeps notes.
void tidyNotes(std::string& json);

/// The position is at most the size; the size is given back for kAtEnd.
std::size_t checkedPosition(std::size_t position, std::size_t size);

/// An object as messages and undo texts call it: its name in quotes.
std::string quoted(const ModelObject& object);
std::string quoted(const std::optional<std::string>& name, const std::string& id);

} // namespace planner
