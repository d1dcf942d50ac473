#pragma once

#include "planner/model/ModelObject.h"
#include "planner/text/StyledText.h"

#include <string>

namespace planner {

/// What an object is, in a word: "product", "fastener", "station", "activity", "resource", "behaviour".
std::string_view kindWord(const ModelObject& object);

/// The name of an object with its id behind it: "Hinge (hinge-2)". The id is left out where it is the name, or missing,
/// and stands alone where the name is empty.
StyledText nameAndId(const ModelObject& object, Style nameStyle = Style::Name);

/// The names of what an object stands in and its own: "Door line / Station 2 / Fit hinge". Of more than twelve names
/// those between the first and the last ten are left out.
std::string pathOfNames(const ModelObject& object);

/// The same with the object's id behind it.
StyledText pathAndId(const ModelObject& object, Style nameStyle = Style::Name);

} // namespace planner
