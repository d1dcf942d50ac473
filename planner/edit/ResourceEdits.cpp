// Resources and their behaviours.

#include "planner/edit/Checks.h"
#include "planner/edit/PlanEditor.h"

namespace planner {

namespace {

ListRef resourcesIn(Plan& plan, Resource* parent) {
    return parent ? ListRef(parent->children) : ListRef(plan.resources);
}

Spot spotOf(Plan& plan, const Resource& resource) {
    auto* const parent = static_cast<Resource*>(resource.container());
    const ListRef list = resourcesIn(plan, parent);
    return {list, parent, list.positionOf(resource)};
}

/// The change that gives a resource that behaviour, and back.
std::unique_ptr<Change> makeBehaviourChange(KindPair kinds, Resource& resource, Behaviour* behaviour) {
    return makeExchange(kinds, [&resource, behaviour]() mutable {
        Behaviour* const before = resource.behaviour();
        resource.setBehaviour(behaviour);
        (behaviour ? behaviour : before)->setContainer(behaviour ? &resource : nullptr);
        behaviour = before;
    });
}

} // namespace

Resource& PlanEditor::addResource(Resource* parent, const NewResource& made, std::size_t position) {
    if (parent) {
        checkStands(plan(), *parent);
    }
    checkNewId(plan(), made.id);
    checkText(made.name.value_or(""));
    const ListRef list = resourcesIn(plan(), parent);
    const std::size_t at = checkedPosition(position, list.size());
    Resource* resource = nullptr;
    perform("Add " + quoted(made.name, made.id), [&] {
        resource = &plan().newResource();
        plan().nameNew(*resource, made.id);
        resource->setName(made.name);
        makeStanding({resource}, Standing::Entering);
        moveInLists(kFlowObjectAdded, *resource, std::nullopt, Spot{list, parent, at});
    });
    return *resource;
}

void PlanEditor::removeResource(Resource& resource) {
    checkStands(plan(), resource);
    perform("Remove " + quoted(resource), [&] {
        takeContents(resource, makeListMove(kFlowObjectRemoved, resource, spotOf(plan(), resource), std::nullopt));
    });
}

void PlanEditor::moveResource(Resource& resource, Resource* parent, std::size_t position) {
    checkStands(plan(), resource);
    if (parent) {
        checkStands(plan(), *parent);
    }
    checkNoCycle(resource, parent);
    const Spot from = spotOf(plan(), resource);
    const ListRef list = resourcesIn(plan(), parent);
    const std::size_t at = checkedPosition(position, list.size() - (from.owner == parent ? 1 : 0));
    perform("Move " + quoted(resource), [&] { moveInLists(kFlowObjectMoved, resource, from, Spot{list, parent, at}); });
}

Behaviour& PlanEditor::addBehaviour(Resource& resource, const std::string& id) {
    checkStands(plan(), resource);
    if (!id.empty()) {
        checkNewId(plan(), id);
    }
    if (resource.behaviour()) {
        throw EditError(EditError::Fault::InUse, quoted(resource) + " has a behaviour already");
    }
    Behaviour* behaviour = nullptr;
    perform("Add a behaviour to " + quoted(resource), [&] {
        behaviour = &plan().newBehaviour();
        plan().nameNew(*behaviour, id);
        makeStanding({behaviour}, Standing::Entering);
        open_->make(makeBehaviourChange(kFlowObjectAdded, resource, behaviour));
    });
    return *behaviour;
}

void PlanEditor::removeBehaviour(Resource& resource) {
    checkStands(plan(), resource);
    Behaviour* const behaviour = resource.behaviour();
    if (!behaviour) {
        throw EditError(EditError::Fault::NoSuchPlace, quoted(resource) + " has no behaviour");
    }
    perform("Remove the behaviour of " + quoted(resource),
            [&] { takeContents(*behaviour, makeBehaviourChange(kFlowObjectRemoved, resource, nullptr)); });
}

} // namespace planner
