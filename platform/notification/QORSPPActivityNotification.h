#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/notification/QOREventSubscriber.h"

#include <utility>

/// Tells of a change in a process plan. The kind is the plan's own number for what has changed.
class QOR_EXPORT QORSPPActivityNotification : public QORNotification {
public:
    explicit QORSPPActivityNotification(int iKind, QORListValQORBaseUnknown_var iChanged = {})
        : _kind(iKind), _changed(std::move(iChanged)) {}
    ~QORSPPActivityNotification() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    int GetNotificationKind() const { return _kind; }

    /// The objects whose own lists have changed, when that is all. Empty: anything may have changed.
    const QORListValQORBaseUnknown_var& GetChangedObjects() const { return _changed; }

private:
    int _kind;
    QORListValQORBaseUnknown_var _changed;
};

/// How changes of a process plan are told: as one event, of the publisher that the plan's root activity gives.
class QOR_EXPORT QORSPPActivityNotificationDispatcher {
public:
    /// Name of the event that views of a plan subscribe to.
    static const char* DISPATCHER_SPP_VIEWS_CHANGE();

    /// Publishes a QORSPPActivityNotification of that kind, with those objects, as this event of iPublisher. What a
    /// subscriber throws comes out when all have been told.
    static void Dispatch(QOREventSubscriber& iPublisher, int iKind, QORListValQORBaseUnknown_var iChanged = {});
};
