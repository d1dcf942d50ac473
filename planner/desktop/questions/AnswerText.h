#pragma once

#include "planner/model/ModelObject.h"

#include <QString>

#include <functional>

namespace planner {
class Plan;
class TextOutput;
} // namespace planner

namespace planner::desktop {

/// What the writer writes for people, as rich text in the same columns: styles become colours of the palette, names of
/// objects that the plan has become links, "#" and the id.
QString answerText(const Plan& plan, const std::function<void(TextOutput&)>& write);

/// The name of an object as a link, and a text, for rich text.
QString linkTo(const ModelObject& object);
QString plainText(const std::string& text);

} // namespace planner::desktop
