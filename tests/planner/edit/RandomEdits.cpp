#include "planner/edit/RandomEdits.h"

#include "planner/model/Contents.h"

namespace editing {

using planner::Activity;
using planner::FlowObject;
using planner::Resource;

namespace {

[[noreturn]] void refuse() {
    throw planner::EditError(planner::EditError::Fault::UnknownObject, "nothing to edit");
}

/// What an edit can't do without; otherwise it counts as refused.
template <class T>
T& needed(T* object) {
    if (!object) {
        refuse();
    }
    return *object;
}

void needRoom(std::size_t count, std::size_t limit) {
    if (count >= limit) {
        refuse();
    }
}

} // namespace

void RandomEdits::step() {
    const std::size_t choice = below(10);
    if (choice == 0) {
        editor().undo();
    } else if (choice == 1) {
        editor().redo();
    } else if (choice == 2) {
        editor().group("group", [&] {
            tryEdit();
            tryEdit();
        });
    } else {
        tryEdit();
    }
}

void RandomEdits::tryEdit() {
    using Edit = void (RandomEdits::*)();
    using R = RandomEdits;
    constexpr Edit kEdits[] = {
        &R::addActivity, &R::addActivity,     &R::move,        &R::remove,        &R::remove,     &R::addLink,
        &R::addLink,     &R::putItem,         &R::putItem,     &R::putItem,       &R::removeLink, &R::takeItem,
        &R::makeList,    &R::dropList,        &R::addItem,     &R::removeItem,    &R::setType,    &R::rename,
        &R::addResource, &R::changeBehaviour, &R::putResource, &R::putResource,   &R::remove,     &R::changeKind,
        &R::changeText,  &R::changeId,        &R::reorder,     &R::changePresence};
    try {
        (this->*kEdits[below(std::size(kEdits))])();
    } catch (const planner::EditError&) {
        ++refused_;
    }
}

/// All that stands in the plan but items, in order.
std::vector<FlowObject*> RandomEdits::flows() const {
    std::vector<FlowObject*> found;
    planner::walkPlan(plan(), [&](FlowObject& object, planner::ModelObject*) { found.push_back(&object); });
    return found;
}

FlowObject& RandomEdits::anyFlow() const {
    const auto all = flows();
    return *all[below(all.size())];
}

planner::Item& RandomEdits::anyItem() const {
    const auto& all = plan().items.entries();
    return needed(all.empty() ? nullptr : all[below(all.size())]);
}

planner::ModelObject& RandomEdits::anyOwner() const {
    return below(3) == 0 ? static_cast<planner::ModelObject&>(anyItem()) : anyFlow();
}

void RandomEdits::addActivity() {
    needRoom(flows().size(), 16);
    editor().addActivity(anyFlow(), {newId(), {}, static_cast<planner::ActivityKind>(below(5))}, position());
}

void RandomEdits::move() {
    FlowObject& object = anyFlow();
    if (auto* const resource = dynamic_cast<Resource*>(&object)) {
        editor().moveResource(*resource, dynamic_cast<Resource*>(&anyFlow()), position());
    } else {
        editor().moveActivity(needed(dynamic_cast<Activity*>(&object)), anyFlow(), position());
    }
}

void RandomEdits::remove() {
    FlowObject& object = anyFlow();
    if (auto* const resource = dynamic_cast<Resource*>(&object)) {
        editor().removeResource(*resource);
    } else {
        editor().removeActivity(needed(dynamic_cast<Activity*>(&object)));
    }
}

void RandomEdits::addLink() {
    needRoom(plan().links().size(), 12); // bills grow with the number of paths
    editor().addLink(anyFlow(), anyFlow());
}

void RandomEdits::removeLink() {
    needRoom(0, plan().links().size());
    const planner::Link& link = *plan().links().begin();
    editor().removeLink(*link.from, *link.to);
}

void RandomEdits::putItem() {
    editor().putItem(anyOwner(), relation(), anyItem(), position());
}

void RandomEdits::takeItem() {
    editor().takeItem(anyOwner(), relation(), below(3));
}

void RandomEdits::makeList() {
    editor().makeList(anyOwner(), relation());
}

void RandomEdits::dropList() {
    editor().dropList(anyOwner(), relation());
}

void RandomEdits::addItem() {
    needRoom(plan().items.size(), 10);
    editor().addItem({newId(), static_cast<planner::ItemKind>(below(4))}, position());
}

void RandomEdits::removeItem() {
    editor().removeItem(anyItem());
}

void RandomEdits::setType() {
    editor().setFastenerType(needed(dynamic_cast<planner::Fastener*>(&anyItem())), below(2) == 0 ? "Rivet" : "Stud");
}

void RandomEdits::rename() {
    editor().rename(anyOwner(), "N" + std::to_string(below(9)));
}

void RandomEdits::addResource() {
    needRoom(flows().size(), 16);
    editor().addResource(dynamic_cast<Resource*>(&anyFlow()), {newId()}, position());
}

void RandomEdits::changeBehaviour() {
    auto& resource = needed(dynamic_cast<Resource*>(&anyFlow()));
    if (resource.behaviour()) {
        editor().removeBehaviour(resource);
    } else {
        editor().addBehaviour(resource, below(2) == 0 ? "" : newId());
    }
}

void RandomEdits::putResource() {
    editor().putItem(anyItem(), planner::Relation::Children, needed(dynamic_cast<Resource*>(&anyFlow())), position());
}

void RandomEdits::changeKind() {
    editor().setKind(needed(dynamic_cast<Activity*>(&anyFlow())), static_cast<planner::ActivityKind>(below(5)));
}

void RandomEdits::changeText() {
    switch (below(4)) {
    case 0:
        return editor().setTitle("T" + std::to_string(below(9)));
    case 1:
        return editor().setNotes(anyOwner(), "[" + std::to_string(below(9)) + " ]");
    case 2:
        return editor().setType(needed(dynamic_cast<Activity*>(&anyFlow())), "T");
    default:
        return editor().rename(anyOwner(), std::nullopt);
    }
}

void RandomEdits::changeId() {
    editor().changeId(anyOwner(), below(4) == 0 ? "" : newId());
}

void RandomEdits::reorder() {
    switch (below(3)) {
    case 0:
        return editor().moveItem(anyItem(), below(4));
    case 1:
        return editor().moveEntry(anyOwner(), relation(), below(3), below(3));
    default:
        needRoom(0, plan().links().size());
        const planner::Link& link = *plan().links().begin();
        return editor().moveLink(*link.from, *link.to, below(4));
    }
}

void RandomEdits::changePresence() {
    FlowObject& object = anyFlow();
    below(2) == 0 ? editor().makeActivities(object) : editor().dropActivities(object);
}

} // namespace editing
