#include "planner/model/FlowObject.h"

namespace planner {

void FlowObject::forgetNeighbours() {
    successors_.reset();
    predecessors_.reset();
}

QORListValQORBaseUnknown_var* FlowObject::newView(const OptionalList<FlowObject*>& view) const {
    const bool linked = !successors_.empty() || !predecessors_.empty();
    if (linked && view.empty()) {
        return new QORListValQORBaseUnknown_var();
    }
    return linked ? newHandles(view) : nullptr;
}

} // namespace planner
