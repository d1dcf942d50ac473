#include "QORPlatform/dialog/QORCommand.h"

#include "QORPlatform/dialog/QORDialogLoop.h"
#include "QORPlatform/dialog/QORDialogObserver.h"
#include "QORPlatform/framework/QORMetaClass.h"

#include <algorithm>
#include <utility>

namespace {

constexpr const char* kSentEvent = "QORCommandNotification";

} // namespace

QORCommand::QORCommand(const QORString& iName, const QORCommand* iParent) : _name(iName) {
    QORDialogObserver::TellAll(QORDialogStep::Made, *this, iParent);
}

QORCommand::~QORCommand() {
    if (_ticket != 0) {
        QORDialogLoop::Get().Forget(_ticket);
    }
    QORDialogObserver::TellAll(QORDialogStep::Ended, *this);
}

QORMetaClass* QORCommand::ClassMeta() {
    return QORRegisterClass<QORCommand>("QORCommand", kQORPlatform, &QOREventSubscriber::ClassMeta);
}

QORMetaClass* QORCommand::GetMetaObject() const {
    return ClassMeta();
}

QORStatus QORCommand::Analyse(QORCommand* iSender, const QORNotification* iNotification, void* iClientData,
                              std::function<void(QORNotification*)> iCall) {
    if (!iSender || !iNotification) {
        return QOR_FAILED;
    }
    auto call = [iNotification, iCall = std::move(iCall)](const char*, QOREventSubscriber*, QORNotification* iSent,
                                                          long) {
        if (iSent == iNotification) {
            iCall(iSent);
        }
    };
    _analyses.push_back({iSender, iNotification, iClientData, iSender->Subscribe(this, kSentEvent, std::move(call))});
    QORDialogObserver::TellAll(QORDialogStep::CallbackRegistered, *this, iSender);
    return QOR_OK;
}

QORStatus QORCommand::RemoveAnalyseNotificationCB(QORCommand* iSender, QORNotification* iNotification,
                                                  void* iClientData) {
    const auto place = std::find_if(_analyses.begin(), _analyses.end(), [&](const Analysis& iAnalysis) {
        return iAnalysis.sender == iSender && iAnalysis.notification == iNotification &&
               iAnalysis.clientData == iClientData;
    });
    if (place == _analyses.end()) {
        return QOR_FAILED;
    }
    const long handle = place->handle;
    _analyses.erase(place);
    const bool senderLives = Unsubscribe(handle);
    QORDialogObserver::TellAll(QORDialogStep::CallbackRemoved, *this, senderLives ? iSender : nullptr);
    return QOR_OK;
}

void QORCommand::SendNotification(QORNotification* iNotification) {
    Publish(kSentEvent, iNotification);
}

void QORCommand::RequestDelayedDestruction() {
    if (_ticket != 0 || _givenUp) {
        return;
    }
    _ticket = QORDialogLoop::Get().Enter(*this);
    QORDialogObserver::TellAll(QORDialogStep::DestructionRequested, *this);
}

void QORCommand::GiveUp() {
    if (_ticket != 0) {
        QORDialogLoop::Get().Forget(std::exchange(_ticket, 0));
    }
    if (!std::exchange(_givenUp, true)) {
        LeaveParent();
        Release();
    }
}
