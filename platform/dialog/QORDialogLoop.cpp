#include "QORPlatform/dialog/QORDialogLoop.h"

#include "QORPlatform/dialog/QORDialog.h"
#include "QORPlatform/toolkit/QORLoopPeer.h"

#include <algorithm>

QORDialogLoop& QORDialogLoop::Get() {
    // Never destroyed: dialog objects sign off whenever they end.
    static auto* const loop = new QORDialogLoop();
    return *loop;
}

long QORDialogLoop::Enter(QORCommand& iCommand) {
    _waiting.emplace(_nextTicket, Waiting{&iCommand, _handled.size()});
    if (_waiting.size() == 1 && _peer) {
        _peer->WorkWaits();
    }
    return _nextTicket++;
}

bool QORDialogLoop::MayEnd(const Waiting& iWaiting) const {
    if (iWaiting.handlers > 0 && iWaiting.handlers <= _handled.size()) {
        return false;
    }
    return std::none_of(_handled.begin(), _handled.end(), [&](const QORWatch<const QORDialog>& iHandled) {
        const QORDialog* dialog = iHandled.Get();
        while (dialog && dialog != iWaiting.command) {
            dialog = dialog->GetParent();
        }
        return dialog != nullptr;
    });
}

void QORDialogLoop::Run() {
    const long end = _nextTicket;
    // Looked up anew each time: what ends may take others along, or run the loop itself.
    for (auto next = _waiting.begin(); next != _waiting.end() && next->first < end;) {
        const long ticket = next->first;
        if (MayEnd(next->second)) {
            next->second.command->GiveUp();
        }
        next = _waiting.upper_bound(ticket);
    }
}

QORHandling::QORHandling(const QORDialog* iDialog) {
    QORDialogLoop::Get()._handled.emplace_back(iDialog);
}

QORHandling::~QORHandling() {
    QORDialogLoop& loop = QORDialogLoop::Get();
    loop._handled.pop_back();
    if (loop._handled.empty() && !loop._waiting.empty() && loop._peer) {
        loop._peer->WorkWaits();
    }
}
