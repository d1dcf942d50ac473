#pragma once

#include "QORPlatform/text/QORExport.h"

class QORCommand;

/// Steps in the life of dialog objects. `other` is the second object that a step is about, null where there is none.
enum class QORDialogStep {
    Made,                 ///< constructed as far as QORCommand; name and nothing else can be asked; other: its parent
    Attached,             ///< a child was attached to this frame's four sides; other: the child
    Detached,             ///< that attachment was taken back, or the child is leaving; other: the child
    CallbackRegistered,   ///< the object analyses notifications from now on; other: who sends them
    CallbackRemoved,      ///< that ended by request; other: who sent them, null when he has ended
    DestructionRequested, ///< will end when the dialog loop next runs
    Ended                 ///< destroyed as far as QORCommand; name and nothing else can be asked
};

/// Watches all dialog objects for as long as it exists; making one is all there is to do. Called in the middle of the
/// step, so look and note, but make and end nothing here.
class QOR_EXPORT QORDialogObserver {
public:
    QORDialogObserver();
    virtual ~QORDialogObserver();
    QORDialogObserver(const QORDialogObserver&) = delete;
    QORDialogObserver& operator=(const QORDialogObserver&) = delete;

    virtual void Happened(QORDialogStep iStep, const QORCommand& iObject, const QORCommand* iOther) = 0;

    /// Tells every observer.
    static void TellAll(QORDialogStep iStep, const QORCommand& iObject, const QORCommand* iOther = nullptr);
};
