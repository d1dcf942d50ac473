#pragma once

#include "planner/model/Resource.h"

#include <vector>

namespace planner {

/// An object that stands in another, and that other one.
struct Contained {
    FlowObject* object;
    ModelObject* container;
};

/// Puts what the object contains on the stack, the first one on top; the behaviour of a resource is its first.
void pushContained(ModelObject& object, std::vector<Contained>& open);

/// Calls visit(object, container) for a top and all that it contains, depth first, an object before what is in it. The
/// container of the top is null.
template <class Visit>
void walkContents(ModelObject& top, Visit visit) {
    std::vector<Contained> open{{static_cast<FlowObject*>(&top), nullptr}};
    while (!open.empty()) {
        const Contained entry = open.back();
        open.pop_back();
        visit(*entry.object, entry.container);
        pushContained(*entry.object, open);
    }
}

} // namespace planner
