#include "planner/model/FlowObject.h"

#include "planner/model/LinkList.h"

namespace planner {

void FlowObject::forgetNeighbours() {
    linksOut_.reset();
    linksIn_.reset();
    container_ = nullptr;
}

QORListValQORBaseUnknown_var* FlowObject::newPredecessors() const {
    if (!isLinked()) {
        return nullptr;
    }
    auto handles = std::make_unique<QORListValQORBaseUnknown_var>();
    for (const Link* link : linksIn_) {
        handles->Append(QORBaseUnknown_var(link->from));
    }
    return handles.release();
}

QORListValQORBaseUnknown_var* FlowObject::newSuccessors() const {
    if (!isLinked()) {
        return nullptr;
    }
    auto handles = std::make_unique<QORListValQORBaseUnknown_var>();
    for (const Link* link : linksOut_) {
        handles->Append(QORBaseUnknown_var(link->to));
    }
    return handles.release();
}

} // namespace planner
