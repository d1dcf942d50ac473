#pragma once

#include "planner/model/Plan.h"
#include "planner/model/Relation.h"

#include <QString>

#include <optional>
#include <vector>

namespace planner::desktop {

/// A row of the plan's tree: an object, and for an item the list that names it there.
struct PlanRow {
    ModelObject* object = nullptr;
    std::optional<Relation> relation = {}; ///< without one the object stands there itself

    friend bool operator==(const PlanRow&, const PlanRow&) = default;
};

/// The rows below an object, in order: the items of its lists, then what stands in it. Null stands for the plan itself:
/// the process, then the resources.
std::vector<PlanRow> rowsBelow(Plan& plan, ModelObject* object);

/// Whether there are any, at a cost that doesn't grow with their number.
bool hasRowsBelow(ModelObject& object);

/// What a relation is called for people.
QString relationName(Relation relation);

} // namespace planner::desktop
