// The lists in which objects name others.

#include "planner/edit/Checks.h"
#include "planner/edit/PlanEditor.h"
#include "planner/file/JsonText.h"
#include "planner/model/Contents.h"

namespace planner {

namespace {

ChangeKind listKind(const ModelObject& owner) {
    return owner.sort() == Sort::Item ? ChangeKind::ItemChanged : ChangeKind::ListsChanged;
}

/// What another entry of a list of the owner is for the views. What else a list makes of its owner, as an assembly is a
/// product for its children, is more than the list.
KindPair listKinds(ModelObject& owner) {
    const bool isProduct = dynamic_cast<Product*>(&owner) && !dynamic_cast<Assembly*>(&owner);
    const bool isThatAlone = owner.sort() == Sort::Activity || isProduct;
    return eitherWay(listKind(owner), isThatAlone ? &owner : nullptr);
}

/// The change that makes an empty list absent, or an absent one empty.
template <class List>
std::unique_ptr<Change> makePresenceChange(KindPair kinds, List& list) {
    return makeExchange(kinds, [&list] {
        if (list.present()) {
            list.reset();
        } else {
            list.make();
        }
    });
}

/// An entry that stands in a list doesn't go with it.
template <class List>
void checkNothingStands(const ModelObject& owner, const List& list) {
    for (const ModelObject* entry : list) {
        if (isContained(*entry, &owner)) {
            throw EditError(EditError::Fault::InUse, quoted(*entry) + " stands in " + quoted(owner));
        }
    }
}

} // namespace

/// An assembly is a product occurrence for its children alone, so as long as another list names it as one, it keeps
/// them.
void PlanEditor::checkMayDrop(const ModelObject& owner, const ObjectList& list) {
    checkNothingStands(owner, list);
    const auto* const assembly = dynamic_cast<const Assembly*>(&owner);
    if (!assembly || &list != &assembly->children) {
        return;
    }
    for (const MentioningList& mention : mentions_.of(owner)) {
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
                        quoted(owner) + " has no list " + inQuotes(relationText(relation)));
    }
    return *list;
}

void PlanEditor::putItem(ModelObject& owner, Relation relation, ModelObject& item, std::size_t position) {
    ObjectList& list = listFor(owner, relation);
    checkStands(plan(), item);
    const Wanted wanted = wantedIn(relation, owner.sort());
    if (!fits(item, wanted)) {
        throw EditError(EditError::Fault::WrongSort, quoted(item) + " can't be put into " +
                                                         inQuotes(relationText(relation)) + " of " + quoted(owner) +
                                                         "; expected " + wantedText(wanted));
    }
    const std::size_t at = checkedPosition(position, list.size());
    perform("Put " + quoted(item) + " into " + quoted(owner), [&] {
        ownProcess(owner);
        moveInLists(listKinds(owner), item, std::nullopt, Spot{list, &owner, at});
    });
}

void PlanEditor::takeItem(ModelObject& owner, Relation relation, std::size_t position) {
    ObjectList& list = listFor(owner, relation);
    if (position >= list.size() || isContained(*list.entries()[position], &owner)) {
        throw EditError(EditError::Fault::NoSuchPlace, "no item at position " + std::to_string(position) + " of " +
                                                           inQuotes(relationText(relation)) + " of " + quoted(owner));
    }
    perform("Take " + quoted(*list.entries()[position]) + " out of " + quoted(owner),
            [&] { takeFromList(owner, list, position); });
}

void PlanEditor::takeFromList(ModelObject& owner, ObjectList& list, std::size_t position) {
    moveInLists(listKinds(owner), *list.entries()[position], Spot{list, &owner, position}, std::nullopt);
}

void PlanEditor::takeMentions(const ModelObject& object) {
    for (const MentioningList& mention : mentions_.of(object)) {
        for (std::size_t position = mention.list->size(); position > 0; --position) {
            if (mention.list->entries()[position - 1] == &object) {
                takeFromList(*mention.owner, *mention.list, position - 1);
            }
        }
    }
}

void PlanEditor::moveEntry(ModelObject& owner, Relation relation, std::size_t from, std::size_t to) {
    ObjectList& list = listFor(owner, relation);
    if (from >= list.size()) {
        throw EditError(EditError::Fault::NoSuchPlace, "no entry at position " + std::to_string(from) + " of " +
                                                           inQuotes(relationText(relation)) + " of " + quoted(owner));
    }
    const std::size_t at = checkedPosition(to, list.size() - 1);
    ModelObject& entry = *list.entries()[from];
    perform("Move " + quoted(entry) + " in " + quoted(owner), [&] {
        moveInLists(listKinds(owner), entry, Spot{list, &owner, from}, Spot{list, &owner, at});
    });
}

void PlanEditor::makeList(ModelObject& owner, Relation relation) {
    ObjectList& list = listFor(owner, relation);
    if (list.present()) {
        return;
    }
    perform("Begin a list of " + quoted(owner), [&] {
        ownProcess(owner);
        open_->make(makePresenceChange(listKinds(owner), list));
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
        open_->make(makePresenceChange(listKinds(owner), list));
    });
}

void PlanEditor::makeActivities(FlowObject& container) {
    checkStands(plan(), container);
    auto& list = activitiesFor(container);
    if (list.present()) {
        return;
    }
    perform("Begin the activities of " + quoted(container), [&] {
        ownProcess(container);
        open_->make(makePresenceChange(eitherWay(listKind(container)), list));
    });
}

void PlanEditor::dropActivities(FlowObject& container) {
    checkStands(plan(), container);
    auto& list = activitiesFor(container);
    if (!list.present()) {
        return;
    }
    checkNothingStands(container, list);
    perform("Drop the activities of " + quoted(container),
            [&] { open_->make(makePresenceChange(eitherWay(listKind(container)), list)); });
}

} // namespace planner
