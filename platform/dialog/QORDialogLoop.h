#pragma once

#include "QORPlatform/dialog/QORWatch.h"
#include "QORPlatform/text/QORExport.h"

#include <map>
#include <vector>

class QORCommand;
class QORDialog;
class QORLoopPeer;

/// The dialog loop's own work: ending the objects that asked for it. The host's event loop runs it whenever it is about
/// to wait for the next event; it waits for nothing and handles no events itself.
class QOR_EXPORT QORDialogLoop {
public:
    static QORDialogLoop& Get();
    QORDialogLoop(const QORDialogLoop&) = delete;
    QORDialogLoop& operator=(const QORDialogLoop&) = delete;

    /// Ends what waited when this was called, in the order in which it was requested, but for what has to wait longer:
    /// an object that is being handled (see QORHandling), one that another such object stands in, and one whose end was
    /// requested inside a handler that hasn't returned. What is requested meanwhile waits for the next run. May be
    /// called from anywhere, inside itself and inside nested event loops too.
    void Run();

    /// Number of objects that wait for their end.
    int GetWaitingCount() const { return static_cast<int>(_waiting.size()); }

    /// The host's event loop, null for none; stays the host's, who keeps it as long as it is set.
    void SetPeer(QORLoopPeer* iPeer) { _peer = iPeer; }

private:
    friend class QORCommand;
    friend class QORHandling;

    struct Waiting {
        QORCommand* command;
        std::size_t handlers; // on the stack when the end was requested
    };

    QORDialogLoop() = default;
    long Enter(QORCommand& iCommand);
    void Forget(long iTicket) { _waiting.erase(iTicket); }
    bool MayEnd(const Waiting& iWaiting) const;

    std::map<long, Waiting> _waiting;
    long _nextTicket = 1;
    std::vector<QORWatch<const QORDialog>> _handled; // innermost last; null for a handler that belongs to no dialog
    QORLoopPeer* _peer = nullptr;
};

/// Marks a handler that is on the stack. The Report operations of windows, tree boxes and viewers mark themselves; a
/// toolkit puts one of these on the stack of each handler of its own that may run an event loop (a menu, a modal
/// dialog, a drag), with the dialog object that the handler works on. Until the mark has gone, the dialog loop ends
/// neither that object, nor what it stands in, nor what the handler asked it to end.
class QOR_EXPORT QORHandling {
public:
    /// Null for iDialog: the handler works on no dialog object.
    explicit QORHandling(const QORDialog* iDialog);
    ~QORHandling();
    QORHandling(const QORHandling&) = delete;
    QORHandling& operator=(const QORHandling&) = delete;
};
