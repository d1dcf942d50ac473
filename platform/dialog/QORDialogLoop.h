#pragma once

#include "QORPlatform/text/QORExport.h"

#include <map>

class QORCommand;

/// The dialog loop's own work: ending the objects that asked for it. A host runs it after each event that it has
/// handled; it waits for nothing and handles no events itself.
class QOR_EXPORT QORDialogLoop {
public:
    static QORDialogLoop& Get();
    QORDialogLoop(const QORDialogLoop&) = delete;
    QORDialogLoop& operator=(const QORDialogLoop&) = delete;

    /// Ends all that waited when this was called, in the order in which it was requested. What is requested meanwhile
    /// waits for the next run. May be called from anywhere, inside itself too.
    void Run();

    /// Number of objects that wait for their end.
    int GetWaitingCount() const { return static_cast<int>(_waiting.size()); }

private:
    friend class QORCommand;

    QORDialogLoop() = default;
    long Enter(QORCommand& iCommand);
    void Forget(long iTicket) { _waiting.erase(iTicket); }

    std::map<long, QORCommand*> _waiting;
    long _nextTicket = 1;
};
