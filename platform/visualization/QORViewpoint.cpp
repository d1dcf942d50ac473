#include "QORPlatform/visualization/QORViewpoint.h"

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/visualization/QORVisManager.h"

namespace {

[[maybe_unused]] const QORMetaClass* const kRegistered = QORViewpoint::ClassMeta();

} // namespace

QORViewpoint::~QORViewpoint() {
    QORVisManager::GetVisManager()->ForgetViewpoint(*this);
}

QORMetaClass* QORViewpoint::ClassMeta() {
    static auto* const meta = new QORMetaClass("QORViewpoint", Implementation, QORMetaClass::OfBaseUnknown(), "QORNull",
                                               "QORPlatform", nullptr);
    return meta;
}

QORMetaClass* QORViewpoint::GetMetaObject() const {
    return ClassMeta();
}
