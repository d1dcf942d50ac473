#include "planner/edit/Relation.h"

#include "planner/model/Resource.h"

namespace planner {

std::string_view relationText(Relation relation) {
    constexpr std::array<std::string_view, 7> kTexts{"first_assigned", "assigned", "removed", "items",
                                                     "outputs",        "children", "holds"};
    return kTexts[static_cast<std::size_t>(relation)];
}

namespace {

ObjectList* listOf(Activity& activity, Relation relation) {
    switch (relation) {
    case Relation::FirstAssigned:
        return &activity.firstAssigned;
    case Relation::Assigned:
        return &activity.assigned;
    case Relation::Removed:
        return &activity.removed;
    case Relation::Items:
        return &activity.items;
    case Relation::Outputs:
        return &activity.outputs;
    default:
        return nullptr;
    }
}

ObjectList* listOf(Behaviour& behaviour, Relation relation) {
    if (relation == Relation::Assigned) {
        return &behaviour.assigned;
    }
    return relation == Relation::Outputs ? &behaviour.outputs : nullptr;
}

ObjectList* listOf(Item& item, Relation relation) {
    if (relation == Relation::Children) {
        auto* const product = dynamic_cast<Product*>(&item);
        return product ? &product->children : nullptr;
    }
    auto* const assembly = relation == Relation::Holds ? dynamic_cast<Assembly*>(&item) : nullptr;
    return assembly ? &assembly->holds : nullptr;
}

} // namespace

ObjectList* listOf(ModelObject& owner, Relation relation) {
    switch (owner.sort()) {
    case Sort::Activity:
        return listOf(static_cast<Activity&>(owner), relation);
    case Sort::Behaviour:
        return listOf(static_cast<Behaviour&>(owner), relation);
    case Sort::Item:
        return listOf(static_cast<Item&>(owner), relation);
    case Sort::Resource:
        break;
    }
    return relation == Relation::Children ? &static_cast<Resource&>(owner).children : nullptr;
}

} // namespace planner
