// Items, and the lists that name them.

#include "planner/edit/Checks.h"
#include "planner/edit/PlanEditor.h"

namespace planner {

namespace {

constexpr KindPair kItemChanged{ChangeKind::ItemChanged, ChangeKind::ItemChanged};

/// What another entry of a list of the owner is for the views.
KindPair listKinds(const ModelObject& owner) {
    constexpr KindPair kListsChanged{ChangeKind::ListsChanged, ChangeKind::ListsChanged};
    return owner.sort() == Sort::Item ? kItemChanged : kListsChanged;
}

/// The change that makes an empty list absent, or an absent one empty.
std::unique_ptr<Change> makePresenceChange(const ModelObject& owner, ObjectList& list) {
    return makeExchange(listKinds(owner), [&list] {
        if (list.present()) {
            list.reset();
        } else {
            list.make();
        }
    });
}

} // namespace

/// Nested resources stand in their list. An assembly is a product occurrence for its children alone, so as long as
/// another list names it as one, it keeps them.
void PlanEditor::checkMayDrop(const ModelObject& owner, const ObjectList& list) {
    for (const ModelObject* entry : list) {
        if (entry->sort() == Sort::Resource) {
            throw EditError(EditError::Fault::InUse, quoted(*entry) + " stands in " + quoted(owner));
        }
    }
    const auto* const assembly = dynamic_cast<const Assembly*>(&owner);
    if (!assembly || &list != &assembly->children) {
        return;
    }
    for (const Mention& mention : mentions_.of(owner)) {
        if (mention.list != &list && mention.list == listOf(*mention.owner, Relation::Children)) {
            throw EditError(EditError::Fault::InUse, quoted(owner) + " is a child of " + quoted(*mention.owner));
        }
    }
}

ObjectList& PlanEditor::listFor(ModelObject& owner, Relation relation) const {
    checkStands(plan(), owner);
    ObjectList* const list = listOf(owner, relation);
    if (!list) {
        throw EditError(EditError::Fault::WrongSort,
                        quoted(owner) + " has no list \"" + std::string(relationText(relation)) + '"');
    }
    return *list;
}

void PlanEditor::putItem(ModelObject& owner, Relation relation, Item& item, std::size_t position) {
    ObjectList& list = listFor(owner, relation);
    checkStands(plan(), item);
    if (relation == Relation::Children) {
        checkIsOccurrence(item);
    }
    const std::size_t at = checkedPosition(position, list.size());
    perform("Put " + quoted(item) + " into " + quoted(owner), [&] {
        ownProcess(owner);
        place(listKinds(owner), item, std::nullopt, Spot{list, &owner, at});
    });
}

void PlanEditor::takeItem(ModelObject& owner, Relation relation, std::size_t position) {
    ObjectList& list = listFor(owner, relation);
    if (position >= list.size() || list.entries()[position]->sort() != Sort::Item) {
        throw EditError(EditError::Fault::NoSuchPlace, "no item at position " + std::to_string(position) + " of \"" +
                                                           std::string(relationText(relation)) + "\" of " +
                                                           quoted(owner));
    }
    perform("Take " + quoted(*list.entries()[position]) + " out of " + quoted(owner),
            [&] { takeFromList(owner, list, position); });
}

void PlanEditor::takeFromList(ModelObject& owner, ObjectList& list, std::size_t position) {
    place(listKinds(owner), *list.entries()[position], Spot{list, &owner, position}, std::nullopt);
}

void PlanEditor::makeList(ModelObject& owner, Relation relation) {
    ObjectList& list = listFor(owner, relation);
    if (list.present()) {
        return;
    }
    perform("Begin a list of " + quoted(owner), [&] {
        ownProcess(owner);
        open_->make(makePresenceChange(owner, list));
    });
}

void PlanEditor::dropList(ModelObject& owner, Relation relation) {
    ObjectList& list = listFor(owner, relation);
    if (!list.present()) {
        return;
    }
    checkMayDrop(owner, list);
    perform("Drop a list of " + quoted(owner), [&] {
        while (!list.empty()) {
            takeFromList(owner, list, list.size() - 1);
        }
        open_->make(makePresenceChange(owner, list));
    });
}

Item& PlanEditor::addItem(const NewItem& made, std::size_t position) {
    checkNewId(plan(), made.id);
    checkText(made.name.value_or(""));
    const std::size_t at = checkedPosition(position, plan().items.size());
    Item* item = nullptr;
    perform("Add " + quoted(made.name, made.id), [&] {
        item = &plan().newItem(made.kind);
        plan().nameNew(*item, made.id);
        if (made.name) {
            item->setName(*made.name);
        }
        makeStanding({item}, Standing::Entering);
        place(kItemChanged, *item, std::nullopt, Spot{plan().items, nullptr, at});
    });
    return *item;
}

void PlanEditor::removeItem(Item& item) {
    checkStands(plan(), item);
    perform("Remove " + quoted(item), [&] {
        takeMentions(item);
        const ListRef list(plan().items);
        place(kItemChanged, item, Spot{list, nullptr, list.positionOf(item)}, std::nullopt);
        makeStanding({&item}, Standing::Leaving);
    });
}

void PlanEditor::takeMentions(const Item& item) {
    for (const Mention& mention : mentions_.of(item)) {
        std::size_t left = mention.count;
        for (std::size_t position = mention.list->size(); left > 0; --position) {
            if (mention.list->entries()[position - 1] == &item) {
                takeFromList(*mention.owner, *mention.list, position - 1);
                --left;
            }
        }
    }
}

void PlanEditor::setShape(Item& item, std::optional<Shape> shape) {
    checkStands(plan(), item);
    if (shape) {
        checkShape(*shape);
    }
    perform("Shape " + quoted(item), [&] {
        open_->make(makeExchange(kItemChanged, [&item, shape = std::move(shape)]() mutable {
            auto before = item.geometry().shape;
            item.setShape(std::move(shape));
            shape = std::move(before);
        }));
    });
}

void PlanEditor::setPlace(Item& item, std::optional<Place> place) {
    checkStands(plan(), item);
    if (place) {
        checkPlace(*place);
    }
    perform("Place " + quoted(item), [&] {
        open_->make(makeExchange(kItemChanged, [&item, place = std::move(place)]() mutable {
            auto before = item.geometry().place;
            item.setPlace(std::move(place));
            place = std::move(before);
        }));
    });
}

void PlanEditor::setFastenerType(Fastener& fastener, std::optional<std::string> type) {
    checkStands(plan(), fastener);
    checkText(type.value_or(""));
    perform("Change the type of " + quoted(fastener), [&] {
        open_->make(
            makeExchange(kItemChanged, [&fastener, type = std::move(type)]() mutable { fastener.type.swap(type); }));
    });
}

void PlanEditor::setAssigned(Fastener& fastener, std::optional<bool> assigned) {
    checkStands(plan(), fastener);
    perform("Change the assignment of " + quoted(fastener), [&] {
        open_->make(makeExchange(kItemChanged, [&fastener, assigned]() mutable { fastener.assigned.swap(assigned); }));
    });
}

} // namespace planner
