#include "QORPlatform/notification/QORSPPActivityNotification.h"

#include "QORPlatform/framework/QORMetaClass.h"

namespace {

[[maybe_unused]] const QORMetaClass* const kRegistered = QORSPPActivityNotification::ClassMeta();

} // namespace

QORSPPActivityNotification::~QORSPPActivityNotification() = default;

QORMetaClass* QORSPPActivityNotification::ClassMeta() {
    static auto* const meta = new QORMetaClass("QORSPPActivityNotification", Implementation,
                                               QORNotification::ClassMeta(), "QORNull", "QORPlatform", nullptr);
    return meta;
}

QORMetaClass* QORSPPActivityNotification::GetMetaObject() const {
    return ClassMeta();
}
