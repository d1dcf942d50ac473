#include "QORPlatform/notification/QORNotification.h"

#include "QORPlatform/framework/QORMetaClass.h"

namespace {

[[maybe_unused]] const QORMetaClass* const kRegistered = QORNotification::ClassMeta();

} // namespace

QORNotification::QORNotification() = default;

QORNotification::~QORNotification() = default;

QORMetaClass* QORNotification::ClassMeta() {
    // Never destroyed, as those of all classes here: objects may be asked for their class while the process ends.
    static auto* const meta = new QORMetaClass("QORNotification", Implementation, QORMetaClass::OfBaseUnknown(),
                                               "QORNull", "QORPlatform", nullptr);
    return meta;
}

QORMetaClass* QORNotification::GetMetaObject() const {
    return ClassMeta();
}
