// Activities of the process, and of behaviours.

#include "planner/edit/Checks.h"
#include "planner/edit/PlanEditor.h"

namespace planner {

namespace {

/// Where the activity stands. The root stands nowhere and can't be taken away.
Spot spotOf(const Plan& plan, const Activity& activity) {
    if (&activity == plan.process()) {
        throw EditError(EditError::Fault::WrongSort, quoted(activity) + " is the root of the process, which stays");
    }
    auto& container = static_cast<FlowObject&>(*activity.container());
    const ListRef list(activitiesFor(container));
    return {list, &container, list.positionOf(activity)};
}

} // namespace

Activity& PlanEditor::addActivity(FlowObject& container, const NewActivity& made, std::size_t position) {
    checkStands(plan(), container);
    auto& list = activitiesFor(container);
    checkNewId(plan(), made.id);
    checkText(made.name.value_or(""));
    checkText(made.type.value_or(""));
    const std::size_t at = checkedPosition(position, list.size());
    Activity* activity = nullptr;
    perform("Add " + quoted(made.name, made.id), [&] {
        ownProcess(container, made.id);
        activity = &plan().newActivity();
        plan().nameNew(*activity, made.id);
        activity->setName(made.name);
        activity->setKind(made.kind);
        activity->setType(made.type);
        makeStanding({activity}, Standing::Entering);
        moveInLists(kFlowObjectAdded, *activity, std::nullopt, Spot{list, &container, at});
    });
    return *activity;
}

void PlanEditor::removeActivity(Activity& activity) {
    checkStands(plan(), activity);
    const Spot spot = spotOf(plan(), activity);
    perform("Remove " + quoted(activity),
            [&] { takeContents(activity, makeListMove(kFlowObjectRemoved, activity, spot, std::nullopt)); });
}

void PlanEditor::moveActivity(Activity& activity, FlowObject& container, std::size_t position) {
    checkStands(plan(), activity);
    checkStands(plan(), container);
    auto& list = activitiesFor(container);
    checkNoCycle(activity, &container);
    const Spot from = spotOf(plan(), activity);
    const std::size_t at = checkedPosition(position, list.size() - (from.owner == &container ? 1 : 0));
    perform("Move " + quoted(activity), [&] {
        ownProcess(container);
        moveInLists(kFlowObjectMoved, activity, from, Spot{list, &container, at});
    });
}

void PlanEditor::setKind(Activity& activity, std::optional<ActivityKind> kind) {
    checkStands(plan(), activity);
    if (&activity == plan().process() && kind == ActivityKind::Logical) {
        throw EditError(EditError::Fault::WrongSort,
                        quoted(activity) + " is the root of the process, which can't be logical");
    }
    exchange("Change the kind of " + quoted(activity), ChangeKind::ListsChanged, activity, [&activity, kind]() mutable {
        const auto before = activity.ownKind();
        activity.setKind(kind);
        kind = before;
    });
}

void PlanEditor::setType(Activity& activity, std::optional<std::string> type) {
    checkStands(plan(), activity);
    checkText(type.value_or(""));
    exchange("Change the type of " + quoted(activity), ChangeKind::Reworded, activity,
             [&activity, type = std::move(type)]() mutable {
                 auto before = activity.ownType();
                 activity.setType(std::move(type));
                 type = std::move(before);
             });
}

} // namespace planner
