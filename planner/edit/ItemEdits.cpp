// Items.

#include "planner/edit/Checks.h"
#include "planner/edit/PlanEditor.h"

namespace planner {

namespace {

constexpr KindPair kItemChanged = eitherWay(ChangeKind::ItemChanged);

} // namespace

Item& PlanEditor::addItem(const NewItem& made, std::size_t position) {
    checkNewId(plan(), made.id);
    checkText(made.name.value_or(""));
    const std::size_t at = checkedPosition(position, plan().items.size());
    Item* item = nullptr;
    perform("Add " + quoted(made.name, made.id), [&] {
        item = &plan().newItem(made.kind);
        plan().nameNew(*item, made.id);
        item->setName(made.name);
        makeStanding({item}, Standing::Entering);
        moveInLists(kItemChanged, *item, std::nullopt, Spot{plan().items, nullptr, at});
    });
    return *item;
}

void PlanEditor::removeItem(Item& item) {
    checkStands(plan(), item);
    perform("Remove " + quoted(item), [&] {
        takeMentions(item);
        const ListRef list(plan().items);
        moveInLists(kItemChanged, item, Spot{list, nullptr, list.positionOf(item)}, std::nullopt);
        makeStanding({&item}, Standing::Leaving);
    });
}

void PlanEditor::moveItem(Item& item, std::size_t position) {
    checkStands(plan(), item);
    const ListRef list(plan().items);
    const std::size_t at = checkedPosition(position, list.size() - 1);
    perform("Move " + quoted(item), [&] {
        moveInLists(kItemChanged, item, Spot{list, nullptr, list.positionOf(item)}, Spot{list, nullptr, at});
    });
}

void PlanEditor::setShape(Item& item, std::optional<Shape> shape) {
    checkStands(plan(), item);
    if (shape) {
        checkShape(*shape);
        tidyNotes(shape->notes);
    }
    exchange("Shape " + quoted(item), ChangeKind::ItemChanged, item, [&item, shape = std::move(shape)]() mutable {
        auto before = item.geometry().shape;
        item.setShape(std::move(shape));
        shape = std::move(before);
    });
}

void PlanEditor::setPlace(Item& item, std::optional<Place> place) {
    checkStands(plan(), item);
    if (place) {
        checkPlace(*place);
    }
    exchange("Place " + quoted(item), ChangeKind::ItemChanged, item, [&item, place = std::move(place)]() mutable {
        auto before = item.geometry().place;
        item.setPlace(std::move(place));
        place = std::move(before);
    });
}

void PlanEditor::setFastenerType(Fastener& fastener, std::optional<std::string> type) {
    checkStands(plan(), fastener);
    checkText(type.value_or(""));
    exchange("Change the type of " + quoted(fastener), ChangeKind::ItemChanged, fastener,
             [&fastener, type = std::move(type)]() mutable { fastener.type.swap(type); });
}

void PlanEditor::setAssigned(Fastener& fastener, std::optional<bool> assigned) {
    checkStands(plan(), fastener);
    exchange("Change the assignment of " + quoted(fastener), ChangeKind::ItemChanged, fastener,
             [&fastener, assigned]() mutable { fastener.assigned.swap(assigned); });
}

} // namespace planner
