// Activities of the process, and of behaviours.

#include "planner/edit/Checks.h"
#include "planner/edit/PlanEditor.h"

namespace planner {

namespace {

constexpr KindPair kAdded{ChangeKind::FlowObjectAdded, ChangeKind::FlowObjectGone};
constexpr KindPair kRemoved{ChangeKind::FlowObjectGone, ChangeKind::FlowObjectAdded};
constexpr KindPair kMoved{ChangeKind::FlowObjectGone, ChangeKind::FlowObjectGone};

OptionalList<Activity*>& activitiesOf(FlowObject& container) {
    if (container.sort() == Sort::Resource) {
        throw EditError(EditError::Fault::WrongSort,
                        quoted(container) + " is a resource; expected an activity or a behaviour to hold activities");
    }
    return container.sort() == Sort::Activity ? static_cast<Activity&>(container).children
                                              : static_cast<Behaviour&>(container).activities;
}

void fill(Activity& activity, const NewActivity& made) {
    if (made.name) {
        activity.setName(*made.name);
    }
    if (made.kind) {
        activity.setKind(*made.kind);
    }
    if (made.type) {
        activity.setType(*made.type);
    }
}

/// Where the activity stands. The root stands nowhere and can't be taken away.
Spot spotOf(const Plan& plan, const Activity& activity) {
    if (&activity == plan.process()) {
        throw EditError(EditError::Fault::WrongSort, quoted(activity) + " is the root of the process, which stays");
    }
    auto& container = static_cast<FlowObject&>(*activity.container());
    const ListRef list(activitiesOf(container));
    return {list, &container, list.positionOf(activity)};
}

} // namespace

Activity& PlanEditor::addActivity(FlowObject& container, const NewActivity& made, std::size_t position) {
    checkStands(plan(), container);
    auto& list = activitiesOf(container);
    checkNewId(plan(), made.id);
    checkText(made.name.value_or(""));
    checkText(made.type.value_or(""));
    const std::size_t at = checkedPosition(position, list.size());
    Activity* activity = nullptr;
    perform("Add " + quoted(made.name, made.id), [&] {
        ownProcess(container, made.id);
        activity = &plan().newActivity();
        plan().nameNew(*activity, made.id);
        fill(*activity, made);
        makeStanding({activity}, Standing::Entering);
        place(kAdded, *activity, std::nullopt, Spot{list, &container, at});
    });
    return *activity;
}

void PlanEditor::removeActivity(Activity& activity) {
    checkStands(plan(), activity);
    const Spot spot = spotOf(plan(), activity);
    perform("Remove " + quoted(activity), [&] {
        place(kRemoved, activity, spot, std::nullopt);
        takeContents(activity);
    });
}

void PlanEditor::moveActivity(Activity& activity, FlowObject& container, std::size_t position) {
    checkStands(plan(), activity);
    checkStands(plan(), container);
    auto& list = activitiesOf(container);
    checkNoCycle(activity, &container);
    const Spot from = spotOf(plan(), activity);
    const std::size_t at = checkedPosition(position, list.size() - (from.owner == &container ? 1 : 0));
    perform("Move " + quoted(activity), [&] {
        ownProcess(container);
        place(kMoved, activity, from, Spot{list, &container, at});
    });
}

} // namespace planner
