#pragma once

#include "planner/model/ModelObject.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace planner {

/// The lists in which objects of a plan name items.
enum class Relation : std::uint8_t {
    FirstAssigned, ///< of an activity
    Assigned,      ///< of an activity, a behaviour
    Removed,       ///< of an activity
    Items,         ///< of an activity
    Outputs,       ///< of an activity, a behaviour
    Children,      ///< of a product, an assembly, a resource: product occurrences
    Holds          ///< of an assembly
};
inline constexpr std::array<Relation, 7> kRelations{Relation::FirstAssigned, Relation::Assigned, Relation::Removed,
                                                    Relation::Items,         Relation::Outputs,  Relation::Children,
                                                    Relation::Holds};

/// The word of the relation in the plan file.
std::string_view relationText(Relation relation);

/// The list that the owner has in that relation, null when objects of its kind have none.
ObjectList* listOf(ModelObject& owner, Relation relation);

} // namespace planner
