#include "planner/model/ModelObject.h"

#include "QORPlatform/framework/QORInterfaceID.h"

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

void ModelObject::setName(std::optional<std::string> name) {
    hasOwnName_ = name.has_value();
    name_ = std::move(name).value_or("");
}

const std::string& ModelObject::notes() const {
    static const std::string none;
    return notes_ ? *notes_ : none;
}

void ModelObject::setNotes(std::string json) {
    notes_ = json.empty() ? nullptr : std::make_unique<std::string>(std::move(json));
}

ModelObject* ModelObject::behind(const QORBaseUnknown_var& handle) {
    return dynamic_cast<ModelObject*>(handle.Impl());
}

namespace {

bool answers(ModelObject& object, const QORInterfaceID& interface) {
    void* found = nullptr;
    if (object.QueryInterface(interface, &found) < 0) {
        return false;
    }
    object.Release(); // the reference that the cast counted
    return true;
}

} // namespace

QORListValQORBaseUnknown_var* newHandlesAnswering(const ObjectList& list, const char* interfaceName) {
    if (!list.present()) {
        return nullptr;
    }
    const QORInterfaceID interface(interfaceName);
    auto handles = std::make_unique<QORListValQORBaseUnknown_var>();
    for (ModelObject* object : list) {
        if (answers(*object, interface)) {
            handles->Append(QORBaseUnknown_var(object));
        }
    }
    return handles.release();
}

} // namespace planner
