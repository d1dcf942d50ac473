#include "QORPlatform/notification/QORSPPActivityNotification.h"

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/framework/QORVar.h"

QORSPPActivityNotification::~QORSPPActivityNotification() = default;

QORMetaClass* QORSPPActivityNotification::ClassMeta() {
    return QORRegisterClass<QORSPPActivityNotification>("QORSPPActivityNotification", kQORPlatform,
                                                        &QORNotification::ClassMeta);
}

QORMetaClass* QORSPPActivityNotification::GetMetaObject() const {
    return ClassMeta();
}

const char* QORSPPActivityNotificationDispatcher::DISPATCHER_SPP_VIEWS_CHANGE() {
    return "DISPATCHER_SPP_VIEWS_CHANGE";
}

void QORSPPActivityNotificationDispatcher::Dispatch(QOREventSubscriber& iPublisher, int iKind,
                                                    QORListValQORBaseUnknown_var iChanged) {
    const auto notification =
        QORVar<QORSPPActivityNotification>::Adopt(new QORSPPActivityNotification(iKind, std::move(iChanged)));
    iPublisher.Publish(DISPATCHER_SPP_VIEWS_CHANGE(), notification.Get());
}
