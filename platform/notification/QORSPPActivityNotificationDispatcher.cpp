#include "notification/QORSPPActivityNotificationDispatcher.h"

#include "framework/QORVar.h"
#include "notification/QORSPPActivityNotification.h"

const char* QORSPPActivityNotificationDispatcher::DISPATCHER_SPP_VIEWS_CHANGE() {
    return "DISPATCHER_SPP_VIEWS_CHANGE";
}

void QORSPPActivityNotificationDispatcher::Dispatch(QOREventSubscriber& iPublisher, int iKind) {
    const auto notification = QORVar<QORSPPActivityNotification>::Adopt(new QORSPPActivityNotification(iKind));
    iPublisher.Publish(DISPATCHER_SPP_VIEWS_CHANGE(), notification.Get());
}
