#include "QORPlatform/dialog/QORDialogLoop.h"

#include "QORPlatform/dialog/QORCommand.h"

QORDialogLoop& QORDialogLoop::Get() {
    // Never destroyed: dialog objects sign off whenever they end.
    static auto* const loop = new QORDialogLoop();
    return *loop;
}

long QORDialogLoop::Enter(QORCommand& iCommand) {
    _waiting.emplace(_nextTicket, &iCommand);
    return _nextTicket++;
}

void QORDialogLoop::Run() {
    const long end = _nextTicket;
    while (!_waiting.empty() && _waiting.begin()->first < end) {
        _waiting.begin()->second->GiveUp();
    }
}
