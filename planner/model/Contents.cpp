#include "planner/model/Contents.h"

namespace planner {

OptionalList<Activity*>* activitiesIn(ModelObject& container) {
    if (container.sort() == Sort::Activity) {
        return &static_cast<Activity&>(container).children;
    }
    return container.sort() == Sort::Behaviour ? &static_cast<Behaviour&>(container).activities : nullptr;
}

} // namespace planner
