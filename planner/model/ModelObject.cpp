#include "planner/model/ModelObject.h"

namespace planner {

const char* sortText(Sort sort) {
    switch (sort) {
    case Sort::Item:
        return "an item";
    case Sort::Activity:
        return "an activity";
    case Sort::Resource:
        return "a resource";
    case Sort::Behaviour:
        break;
    }
    return "a behaviour";
}

void ModelObject::setName(std::string name) {
    name_ = std::move(name);
    hasOwnName_ = true;
}

void ModelObject::swapName(std::string& name, bool& isOwn) {
    name_.swap(name);
    std::swap(hasOwnName_, isOwn);
}

const std::string& ModelObject::notes() const {
    static const std::string none;
    return notes_ ? *notes_ : none;
}

void ModelObject::setNotes(std::string json) {
    notes_ = std::make_unique<std::string>(std::move(json));
}

ModelObject* ModelObject::behind(const QORBaseUnknown_var& handle) {
    return dynamic_cast<ModelObject*>(handle.Impl());
}

} // namespace planner
