#pragma once

#include "QORPlatform/notification/QORNotification.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

class QOREventSubscriber;

/// What runs when an event is published that was subscribed to.
using QOREventCall = std::function<void(const char* iEvent, QOREventSubscriber* iPublisher,
                                        QORNotification* iNotification, long iHandle)>;

/// In the place of a handle: no subscription.
inline constexpr long kQORNoCallback = -1;

/// An object that subscribes to events of others, and publishes events of its own.
///
/// Both ends may go at any time, inside a notification too: with a subscriber end its subscriptions, and with a
/// publisher those to it. Neither counts on the other. To subscribe a member function, see AddCallback below.
class QOR_EXPORT QOREventSubscriber : public QORBaseUnknown {
public:
    QOREventSubscriber();
    ~QOREventSubscriber() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    /// Called on a publisher: runs iCall from now on for each event of that name, until RemoveCallback or the end of
    /// either object. The result is a handle that no other subscription of the process has, or kQORNoCallback without
    /// a subscriber, an event or something to call.
    long Subscribe(QOREventSubscriber* iSubscriber, const char* iEvent, QOREventCall iCall);

    /// Called on the publisher, which is named once more: ends the subscription of that handle. Negative when this
    /// object isn't iPublisher, or has no such subscription (any more).
    QORStatus RemoveCallback(QOREventSubscriber* iPublisher, long iHandle);

    /// Tells all who are subscribed to iEvent now, in the order in which they came. Who unsubscribes meanwhile isn't
    /// called any more, who subscribes meanwhile waits for the next event, and an event that is published by a
    /// subscriber is delivered before its call returns. When a subscriber throws, the rest is told all the same, and
    /// the first exception is raised again at the end. With the end of this object the telling ends too.
    void Publish(const char* iEvent, QORNotification* iNotification);

    /// Called on a publisher: begins and ends a group of notifications that belong together, as those of one edit do;
    /// groups may stand in groups. Each is delivered at once all the same; see CallAfterGroup.
    void BeginGroup() { ++_groups; }
    void EndGroup();
    bool IsInGroup() const { return _groups > 0; }

    /// Runs iDeeds in a group of this publisher. What they raise comes out when the group has ended, and goes before
    /// what its end raises.
    void InGroup(const std::function<void()>& iDeeds);

    /// Called on a publisher, for a subscriber with work to do once for all notifications of a group: runs iCall when
    /// the outermost group ends, at once when there is none, and never when one of the two has ended by then. When
    /// several raise, all run, and the first exception is raised again at the end.
    void CallAfterGroup(QOREventSubscriber& iSubscriber, std::function<void()> iCall);

    /// Number of subscriptions to this publisher.
    int GetSubscriptionCount() const { return static_cast<int>(_subscriptions.size()); }

protected:
    /// Called on a publisher after a subscription has come or gone.
    virtual void SubscriptionsChanged() {}

    /// Called on a subscriber: ends its subscription of that handle, whoever publishes; whether there was one still.
    bool Unsubscribe(long iHandle);

private:
    struct Subscription;
    struct DelayedCall {
        std::weak_ptr<const bool> subscriber;
        std::function<void()> call;
    };

    bool Drop(long iHandle);

    std::map<long, std::shared_ptr<Subscription>> _subscriptions; // of others to this one, oldest first
    std::map<long, QOREventSubscriber*> _publishers;              // that this one is subscribed to
    int _groups = 0;                                              // that are open
    std::vector<DelayedCall> _afterGroup;
    std::shared_ptr<const bool> _life = std::make_shared<const bool>(true);
};

/// Subscribes a member function of iSubscriber to an event of iPublisher. The function gets the event's name, the
/// publisher (a QOREventSubscriber*), the notification, iClientData as it is and the handle. Gives the handle, or
/// kQORNoCallback when one of the two or the event is null.
template <class Subscriber>
long AddCallback(Subscriber* iSubscriber, QOREventSubscriber* iPublisher, const char* iEvent,
                 void (Subscriber::*iMethod)(const char* iEvent, void* iPublisher, QORNotification* iNotification,
                                             void* iClientData, long iHandle),
                 void* iClientData) {
    if (!iPublisher || !iMethod) {
        return kQORNoCallback;
    }
    return iPublisher->Subscribe(iSubscriber, iEvent,
                                 [iSubscriber, iMethod, iClientData](const char* iName, QOREventSubscriber* iFrom,
                                                                     QORNotification* iNotification, long iHandle) {
                                     (iSubscriber->*iMethod)(iName, iFrom, iNotification, iClientData, iHandle);
                                 });
}
