#pragma once

#include "planner/model/ModelObject.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace planner {

/// The lists in which objects of a plan name others.
enum class Relation : std::uint8_t {
    FirstAssigned, ///< of an activity
    Assigned,      ///< of an activity, a behaviour
    Removed,       ///< of an activity
    Items,         ///< of an activity
    Outputs,       ///< of an activity, a behaviour
    Children,      ///< of a product, an assembly, a resource: product occurrences
    Holds,         ///< of an assembly
    Joins          ///< of a fastener
};
inline constexpr std::array<Relation, 8> kRelations{Relation::FirstAssigned, Relation::Assigned, Relation::Removed,
                                                    Relation::Items,         Relation::Outputs,  Relation::Children,
                                                    Relation::Holds,         Relation::Joins};

/// The word of the relation in the plan file.
constexpr std::string_view relationText(Relation relation) {
    constexpr std::array<std::string_view, kRelations.size()> kTexts{"first_assigned", "assigned", "removed", "items",
                                                                     "outputs",        "children", "holds",   "joins"};
    return kTexts[static_cast<std::size_t>(relation)];
}

/// The list that the owner has in that relation, null when objects of its kind have none.
ObjectList* listOf(ModelObject& owner, Relation relation);
const ObjectList* listOf(const ModelObject& owner, Relation relation);

/// What a bill shows below an item: what an assembly holds, the children of any other. Null for what has no such list.
const ObjectList* structureOf(const ModelObject& item);

/// What a reference may name.
enum class Wanted : std::uint8_t {
    AnyItem,
    ProductOccurrence, ///< whatever answers QORIProduct
    ProductItem,       ///< an item that answers QORIProduct
    FlowEnd            ///< an activity, a resource, a behaviour
};

/// What a list of that relation may name, by the sort of the object that has it.
Wanted wantedIn(Relation relation, Sort owner);

/// Whether the object can be named there, and what else a message says can: "an item".
bool fits(const ModelObject& object, Wanted wanted);
const char* wantedText(Wanted wanted);

} // namespace planner
