#include "planner/model/Relation.h"

#include "planner/model/Resource.h"

namespace planner {

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
    if (relation == Relation::Joins) {
        auto* const fastener = dynamic_cast<Fastener*>(&item);
        return fastener ? &fastener->joins : nullptr;
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

const ObjectList* listOf(const ModelObject& owner, Relation relation) {
    return listOf(const_cast<ModelObject&>(owner), relation);
}

const ObjectList* structureOf(const ModelObject& item) {
    if (item.sort() != Sort::Item) {
        return nullptr;
    }
    const bool isAssembly = static_cast<const Item&>(item).kind() == ItemKind::Assembly;
    return listOf(item, isAssembly ? Relation::Holds : Relation::Children);
}

Wanted wantedIn(Relation relation, Sort owner) {
    if (relation != Relation::Children) {
        return Wanted::AnyItem;
    }
    return owner == Sort::Resource ? Wanted::ProductItem : Wanted::ProductOccurrence;
}

bool fits(const ModelObject& object, Wanted wanted) {
    const Sort sort = object.sort();
    const bool isProduct = sort == Sort::Item && static_cast<const Item&>(object).answersProduct();
    switch (wanted) {
    case Wanted::AnyItem:
        return sort == Sort::Item;
    case Wanted::ProductOccurrence:
        return isProduct || sort == Sort::Resource;
    case Wanted::ProductItem:
        return isProduct;
    case Wanted::FlowEnd:
        break;
    }
    return sort != Sort::Item;
}

const char* wantedText(Wanted wanted) {
    constexpr std::array<const char*, 4> kTexts{"an item", "a product, an assembly with \"children\", or a resource",
                                                "a product, or an assembly with \"children\"",
                                                "an activity, a resource or a behaviour"};
    return kTexts[static_cast<std::size_t>(wanted)];
}

} // namespace planner
