#include "planner/model/Plan.h"

#include "planner/model/Contents.h"

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

namespace {

std::unique_ptr<Item> makeItem(ItemKind kind) {
    switch (kind) {
    case ItemKind::Product:
        return std::make_unique<Product>();
    case ItemKind::Assembly:
        return std::make_unique<Assembly>();
    case ItemKind::Fastener:
        return std::make_unique<Fastener>();
    case ItemKind::Item:
        break;
    }
    return std::make_unique<Item>();
}

} // namespace

Item& Plan::newItem(ItemKind kind) {
    Item& item = keep(makeItem(kind));
    item.plan_ = this;
    return item;
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
    setProcess(root);
    processIsDefault_ = true;
}

void Plan::setProcess(Activity& root) {
    root.becomeRoot();
    process_ = &root;
}

bool Plan::setId(ModelObject& object, std::string id) {
    if (byId_.find(id)) {
        return false;
    }
    object.id_ = std::move(id);
    byId_.insert(object);
    return true;
}

void Plan::number() {
    for (Item* item : items) {
        numberNext(*item);
        item->stands_ = true;
    }
    walkPlan(*this, [this](FlowObject& object, ModelObject* container) {
        numberNext(object);
        object.stands_ = true;
        object.setContainer(container);
    });
}

} // namespace planner
