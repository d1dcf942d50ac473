#include "QORPlatform/notification/QORNotification.h"

#include "QORPlatform/framework/QORMetaClass.h"

QORNotification::QORNotification() = default;

QORNotification::~QORNotification() = default;

QORMetaClass* QORNotification::ClassMeta() {
    return QORRegisterClass<QORNotification>("QORNotification", kQORPlatform);
}

QORMetaClass* QORNotification::GetMetaObject() const {
    return ClassMeta();
}
