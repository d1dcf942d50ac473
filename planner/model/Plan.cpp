#include "planner/model/Plan.h"

#include <algorithm>

namespace planner {

Plan::Plan() = default;

Plan::~Plan() {
    for (ModelObject* object : objects_) {
        object->forgetNeighbours();
    }
    for (ModelObject* object : objects_) {
        object->Release();
    }
}

template <class T>
T& Plan::keep(std::unique_ptr<T> object) {
    objects_.push_back(object.get());
    return *object.release();
}

Item& Plan::newItem(ItemKind kind) {
    switch (kind) {
    case ItemKind::Product:
        return keep(std::make_unique<Product>());
    case ItemKind::Assembly:
        return keep(std::make_unique<Assembly>());
    case ItemKind::Fastener:
        return keep(std::make_unique<Fastener>());
    case ItemKind::Item:
        break;
    }
    return keep(std::make_unique<Item>());
}

Activity& Plan::newActivity() {
    return keep(std::make_unique<Activity>());
}

Behaviour& Plan::newBehaviour() {
    return keep(std::make_unique<Behaviour>());
}

Resource& Plan::newResource() {
    return keep(std::make_unique<Resource>());
}

void Plan::makeDefaultProcess() {
    Activity& root = newActivity();
    root.setName(title());
    process_ = &root;
    processIsDefault_ = true;
}

bool Plan::setId(ModelObject& object, std::string id) {
    if (byId_.find(id)) {
        return false;
    }
    object.id_ = std::move(id);
    byId_.insert(object);
    return true;
}

void Plan::addLink(FlowObject& from, FlowObject& to) {
    links_.add({&from, &to});
    from.successors_.add(&to);
    to.predecessors_.add(&from);
}

namespace {

/// Puts what the object contains on the stack, the first one on top.
void pushContained(ModelObject& object, std::vector<ModelObject*>& open) {
    const auto pushReversed = [&](const auto& list) {
        std::for_each(list.entries().rbegin(), list.entries().rend(), [&](ModelObject* entry) {
            if (entry->sort() != Sort::Item) {
                open.push_back(entry);
            }
        });
    };
    if (object.sort() == Sort::Activity) {
        pushReversed(static_cast<Activity&>(object).children);
    } else if (object.sort() == Sort::Behaviour) {
        pushReversed(static_cast<Behaviour&>(object).activities);
    } else if (object.sort() == Sort::Resource) {
        auto& resource = static_cast<Resource&>(object);
        pushReversed(resource.children);
        if (resource.behaviour()) {
            open.push_back(resource.behaviour());
        }
    }
}

} // namespace

void Plan::number() {
    int next = 1;
    for (Item* item : items) {
        static_cast<ModelObject*>(item)->SetIdentity(next++);
    }
    std::vector<ModelObject*> open(resources.entries().rbegin(), resources.entries().rend());
    open.push_back(process_);
    while (!open.empty()) {
        ModelObject* const object = open.back();
        open.pop_back();
        object->SetIdentity(next++);
        pushContained(*object, open);
    }
}

} // namespace planner
