#include "planner/model/ProductAnswers.h"

#include "QORPlatform/framework/QORInterfaceID.h"

namespace planner {

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
