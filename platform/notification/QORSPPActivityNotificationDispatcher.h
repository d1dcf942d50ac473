#pragma once

#include "QORPlatform/notification/QOREventSubscriber.h"

/// How changes of a process plan are told: as one event, of the publisher that the plan's root activity gives.
class QOR_EXPORT QORSPPActivityNotificationDispatcher {
public:
    /// Name of the event that views of a plan subscribe to.
    static const char* DISPATCHER_SPP_VIEWS_CHANGE();

    /// Publishes a QORSPPActivityNotification of that kind as this event of iPublisher. What a subscriber throws comes
    /// out when all have been told.
    static void Dispatch(QOREventSubscriber& iPublisher, int iKind);
};
