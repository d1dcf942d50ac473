#pragma once

#include "planner/model/Plan.h"

#include "QORPlatform/framework/QORDeepStack.h"

namespace planner {

// What stands in what: activities in activities and behaviours, a behaviour in its resource, resources in resources.
// Everything else that a list has is named there and stands somewhere else.

/// Whether an entry of a list stands there. The owner of the list is null for the plan itself.
inline bool isContained(const ModelObject& entry, const ModelObject* owner) {
    return entry.sort() != Sort::Item && (!owner || owner->sort() != Sort::Item);
}

/// The list of the activities that stand in an activity or a behaviour; null for any other object.
OptionalList<Activity*>* activitiesIn(ModelObject& container);

/// Calls visit(object) for what stands in an object itself, in order; the behaviour of a resource comes first.
template <class Visit>
void visitContained(ModelObject& container, Visit visit) {
    if (OptionalList<Activity*>* const activities = activitiesIn(container)) {
        for (Activity* activity : *activities) {
            visit(static_cast<FlowObject&>(*activity));
        }
    } else if (container.sort() == Sort::Resource) {
        auto& resource = static_cast<Resource&>(container);
        if (resource.behaviour()) {
            visit(static_cast<FlowObject&>(*resource.behaviour()));
        }
        for (ModelObject* child : resource.children) {
            if (isContained(*child, &resource)) {
                visit(static_cast<FlowObject&>(*child));
            }
        }
    }
}

/// Calls visit(object, container) for a top and all that stands in it, depth first, an object before what is in it. The
/// container of the top is null.
template <class Visit>
void walkContents(FlowObject& top, const Visit& visit, ModelObject* container = nullptr) {
    visit(top, container);
    visitContained(top, [&](FlowObject& object) { QORCallDeep([&] { walkContents(object, visit, &top); }); });
}

/// The same for all that stands in a plan but its items: the process, then the resources.
template <class Visit>
void walkPlan(Plan& plan, const Visit& visit) {
    walkContents(*plan.process(), visit);
    for (Resource* resource : plan.resources) {
        walkContents(*resource, visit);
    }
}

} // namespace planner
