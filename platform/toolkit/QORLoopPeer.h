#pragma once

/// What the dialog loop needs from the host's event loop. The host runs the dialog loop (QORDialogLoop::Run) whenever
/// its event loop is about to wait, nested ones too: those of a menu, a modal dialog, a drag. No run ends anything
/// whose handler is on the stack, as long as handlers are marked; see QORHandling.
class QORLoopPeer {
public:
    virtual ~QORLoopPeer() = default;

    /// Something waits for the dialog loop now and nothing did before, or still does though the last handler on the
    /// stack has returned. For an event loop that doesn't say when it is about to wait: see to it that the dialog loop
    /// is run once control is back there. Run nothing here.
    virtual void WorkWaits() = 0;
};
