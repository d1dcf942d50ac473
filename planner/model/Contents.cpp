#include "planner/model/Contents.h"

#include <algorithm>

namespace planner {

void pushContained(ModelObject& object, std::vector<Contained>& open) {
    const auto pushReversed = [&](const auto& list) {
        std::for_each(list.entries().rbegin(), list.entries().rend(), [&](ModelObject* entry) {
            if (entry->sort() != Sort::Item) {
                open.push_back({static_cast<FlowObject*>(entry), &object});
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
            open.push_back({resource.behaviour(), &resource});
        }
    }
}

} // namespace planner
