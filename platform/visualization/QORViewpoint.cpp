#include "visualization/QORViewpoint.h"

#include "framework/QORMetaClass.h"
#include "visualization/QORVisManager.h"

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
