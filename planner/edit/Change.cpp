#include "planner/edit/Change.h"

#include "planner/model/Contents.h"

namespace planner {

void ListMove::apply() {
    if (from_) {
        takeOut(*from_);
    }
    if (to_) {
        wasPresent_ = to_->list.present();
        putIn(*to_);
    }
}

void ListMove::revert() {
    if (to_) {
        takeOut(*to_);
        if (!wasPresent_) {
            to_->list.reset();
        }
    }
    if (from_) {
        putIn(*from_);
    }
}

void ListMove::putIn(Spot& spot) {
    spot.list.insert(spot.position, object_);
    if (isContained(object_, spot.owner)) {
        static_cast<FlowObject&>(object_).setContainer(spot.owner);
    } else if (ObjectList* const list = spot.list.objects()) {
        mentions_.came(object_, *spot.owner, *list);
    }
}

void ListMove::takeOut(Spot& spot) {
    spot.list.erase(spot.position);
    if (isContained(object_, spot.owner)) {
        static_cast<FlowObject&>(object_).setContainer(nullptr);
    } else if (const ObjectList* const list = spot.list.objects()) {
        mentions_.went(object_, *list);
    }
}

void Standing::enter() {
    for (ModelObject* object : objects_) {
        plan_.enter(*object);
        mentions_.ownerCame(*object);
    }
}

void Standing::leave() {
    for (ModelObject* object : objects_) {
        mentions_.ownerWent(*object);
        plan_.leave(*object);
    }
}

void Standing::forget() {
    if (direction_ == Entering) {
        for (ModelObject* object : objects_) {
            plan_.discard(*object);
        }
    }
}

} // namespace planner
