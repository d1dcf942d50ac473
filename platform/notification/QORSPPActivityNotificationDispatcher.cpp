#include "QORPlatform/notification/QORSPPActivityNotificationDispatcher.h"

#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/notification/QORSPPActivityNotification.h"

const char* QORSPPActivityNotificationDispatcher::DISPATCHER_SPP_VIEWS_CHANGE() {
    return "DISPATCHER_SPP_VIEWS_CHANGE";
}

void QORSPPActivityNotificationDispatcher::Dispatch(QOREventSubscriber& iPublisher, int iKind) {
    const auto notification = QORVar<QORSPPActivityNotification>::Adopt(new QORSPPActivityNotification(iKind));
    iPublisher.Publish(DISPATCHER_SPP_VIEWS_CHANGE(), notification.Get());
}
