// Publishing goes over a snapshot of the subscriptions, each of which says whether it still holds. So nothing that a
// subscriber does (unsubscribe, subscribe, publish, end itself, the publisher or another subscriber) reaches the loop.

#include "QORPlatform/notification/QOREventSubscriber.h"

#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/framework/QORVar.h"

#include <exception>
#include <utility>

namespace {

long nextHandle = 1;

/// Lets several calls run whatever they raise, and raises the first of it.
class FirstError {
public:
    template <class Call>
    void During(const Call& iCall) {
        try {
            iCall();
        } catch (...) {
            _first = _first ? _first : std::current_exception();
        }
    }
    void Raise() const {
        if (_first) {
            std::rethrow_exception(_first);
        }
    }

private:
    std::exception_ptr _first;
};

} // namespace

struct QOREventSubscriber::Subscription {
    QOREventSubscriber* subscriber;
    std::string event;
    QOREventCall call;
    bool holds = true;
};

QOREventSubscriber::QOREventSubscriber() = default;

QOREventSubscriber::~QOREventSubscriber() {
    for (const auto& [handle, subscription] : _subscriptions) {
        subscription->holds = false;
        subscription->subscriber->_publishers.erase(handle);
    }
    _subscriptions.clear();
    while (!_publishers.empty()) {
        Unsubscribe(_publishers.begin()->first);
    }
}

QORMetaClass* QOREventSubscriber::ClassMeta() {
    return QORRegisterClass<QOREventSubscriber>("QOREventSubscriber", kQORPlatform);
}

QORMetaClass* QOREventSubscriber::GetMetaObject() const {
    return ClassMeta();
}

long QOREventSubscriber::Subscribe(QOREventSubscriber* iSubscriber, const char* iEvent, QOREventCall iCall) {
    if (!iSubscriber || !iEvent || !iCall) {
        return kQORNoCallback;
    }
    const long handle = nextHandle++;
    const auto made = iSubscriber->_publishers.emplace(handle, this).first;
    try {
        _subscriptions.emplace(handle,
                               std::make_shared<Subscription>(Subscription{iSubscriber, iEvent, std::move(iCall)}));
    } catch (...) {
        iSubscriber->_publishers.erase(made); // both know of it, or none
        throw;
    }
    SubscriptionsChanged();
    return handle;
}

QORStatus QOREventSubscriber::RemoveCallback(QOREventSubscriber* iPublisher, long iHandle) {
    return iPublisher == this && Drop(iHandle) ? QOR_OK : QOR_FAILED;
}

bool QOREventSubscriber::Unsubscribe(long iHandle) {
    const auto place = _publishers.find(iHandle);
    return place != _publishers.end() && place->second->Drop(iHandle);
}

bool QOREventSubscriber::Drop(long iHandle) {
    const auto place = _subscriptions.find(iHandle);
    if (place == _subscriptions.end()) {
        return false;
    }
    place->second->holds = false;
    place->second->subscriber->_publishers.erase(iHandle);
    _subscriptions.erase(place);
    SubscriptionsChanged();
    return true;
}

void QOREventSubscriber::Publish(const char* iEvent, QORNotification* iNotification) {
    // Name and notification are held here: the one who gave them may go while subscribers are told.
    const std::string event(iEvent ? iEvent : "");
    const QORVar<QORNotification> notification(iNotification);
    FirstError first;
    for (const auto& [handle, subscription] : std::map(_subscriptions)) {
        if (subscription->holds && subscription->event == event) {
            first.During(
                [&, number = handle, &call = subscription->call] { call(event.c_str(), this, iNotification, number); });
        }
    }
    first.Raise();
}

void QOREventSubscriber::EndGroup() {
    if (_groups == 0 || --_groups > 0) {
        return;
    }
    FirstError first;
    for (const DelayedCall& delayed : std::exchange(_afterGroup, {})) {
        if (!delayed.subscriber.expired()) {
            first.During(delayed.call);
        }
    }
    first.Raise();
}

void QOREventSubscriber::InGroup(const std::function<void()>& iDeeds) {
    const std::weak_ptr<const bool> self = _life;
    FirstError first;
    BeginGroup();
    first.During(iDeeds);
    first.During([&] {
        if (!self.expired()) {
            EndGroup();
        }
    });
    first.Raise();
}

void QOREventSubscriber::CallAfterGroup(QOREventSubscriber& iSubscriber, std::function<void()> iCall) {
    if (IsInGroup()) {
        _afterGroup.push_back({iSubscriber._life, std::move(iCall)});
    } else {
        iCall();
    }
}
