#include "planner/model/Resource.h"

namespace planner {

QORStatus Behaviour::QueryInterface(const QORInterfaceID& iInterface, void** oInterface) {
    if (!id().empty() && QORAnswer(iInterface, oInterface, flow_) >= 0) {
        return QOR_OK;
    }
    const QORStatus status = QORAnswer(iInterface, oInterface, behaviour_, items_);
    return status < 0 ? ModelObject::QueryInterface(iInterface, oInterface) : status;
}

void Behaviour::forgetNeighbours() {
    FlowObject::forgetNeighbours();
    activities.reset();
    assigned.reset();
    outputs.reset();
}

QORListValQORBaseUnknown_var* Behaviour::GetActivities(void*) const {
    return newHandles(activities);
}

QORStatus Resource::QueryInterface(const QORInterfaceID& iInterface, void** oInterface) {
    const QORStatus status = QORAnswer(iInterface, oInterface, product_, manager_, flow_, spec_);
    return status < 0 ? ModelObject::QueryInterface(iInterface, oInterface) : status;
}

void Resource::forgetNeighbours() {
    FlowObject::forgetNeighbours();
    children.reset();
    behaviour_ = nullptr;
}

QORListValQORBaseUnknown_var* Resource::GetChildren(const char* iInterface) const {
    return newHandlesAnswering(children, iInterface);
}

QORStatus Resource::GetInstanceName(QORUnicodeString& oName) const {
    oName = platformText(name());
    return QOR_OK;
}

QORStatus Resource::GetBehavior(VXMIResourceBehavior_var& oBehavior) const {
    if (!behaviour_) {
        return QOR_FAILED;
    }
    oBehavior = VXMIResourceBehavior_var(behaviour_);
    return QOR_OK;
}

} // namespace planner
