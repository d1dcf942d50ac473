#pragma once

#include "QORPlatform/dialog/QORWatch.h"
#include "QORPlatform/notification/QOREventSubscriber.h"
#include "QORPlatform/text/QORString.h"

#include <vector>

/// An object of the dialog: has a name, analyses notifications that others send, and can be asked to end later.
///
/// The reference that `new` gave belongs to the parent where there is one, else to whoever made the object. He lets it
/// go with Release, or with RequestDelayedDestruction where somebody may still be busy with the object.
class QOR_EXPORT QORCommand : public QOREventSubscriber, public QORWatchable, private QORCounted<QORCommand> {
public:
    static constexpr std::string_view kCountName = "QORCommand";

    ~QORCommand() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    const QORString& GetName() const { return _name; }

    /// Calls iMethod of this object, a Receiver, for each notification iNotification (that very object) that iSender
    /// sends; it gets sender, notification and iClientData. Negative when sender, notification or method is null.
    template <class Receiver>
    QORStatus AddAnalyseNotificationCB(QORCommand* iSender, QORNotification* iNotification,
                                       void (Receiver::*iMethod)(QORCommand*, QORNotification*, void*),
                                       void* iClientData);

    /// Takes back what AddAnalyseNotificationCB registered with the same sender, notification and client data. The
    /// sender may be gone by now. Negative when there is nothing to take back.
    QORStatus RemoveAnalyseNotificationCB(QORCommand* iSender, QORNotification* iNotification, void* iClientData);

    /// Calls everybody who analyses iNotification of this object, on the terms of Publish.
    void SendNotification(QORNotification* iNotification);

    /// Ends this object when the dialog loop next runs: lets the first reference go, so that what holds further ones
    /// keeps it until then. The first reference is spent by the request: nobody releases it any more, and whoever goes
    /// on using the object holds a counted handle of his own. A second request changes nothing; an object whose parent
    /// ends goes with the parent.
    void RequestDelayedDestruction();

    /// Whether the object waits for the dialog loop to end it.
    bool IsWaitingForEnd() const { return _ticket != 0; }

protected:
    QORCommand(const QORString& iName, const QORCommand* iParent);

    /// Takes the object out of what keeps it, before its first reference is let go.
    virtual void LeaveParent() {}

    /// Lets the first reference go, once; the object no longer waits for the loop.
    void GiveUp();

private:
    friend class QORDialogLoop;
    friend class QORDialog;

    struct Analysis {
        const QORCommand* sender;
        const QORNotification* notification;
        void* clientData;
        long handle;
    };

    QORStatus Analyse(QORCommand* iSender, const QORNotification* iNotification, void* iClientData,
                      std::function<void(QORNotification*)> iCall);

    QORString _name;
    std::vector<Analysis> _analyses;
    long _ticket = 0;
    bool _givenUp = false;
};

template <class Receiver>
QORStatus QORCommand::AddAnalyseNotificationCB(QORCommand* iSender, QORNotification* iNotification,
                                               void (Receiver::*iMethod)(QORCommand*, QORNotification*, void*),
                                               void* iClientData) {
    if (!iMethod) {
        return QOR_FAILED;
    }
    auto* const receiver = static_cast<Receiver*>(this);
    return Analyse(iSender, iNotification, iClientData,
                   [receiver, iSender, iMethod, iClientData](QORNotification* iSent) {
                       (receiver->*iMethod)(iSender, iSent, iClientData);
                   });
}
