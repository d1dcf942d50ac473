#pragma once

#include <memory>

class QORFrmWindow;

/// What a window of the application's frame needs from a toolkit. Called on the thread of the dialog loop, in the
/// middle of other work: note what has changed, ask the window when it is time to paint, and run no event loop here.
/// What a person does goes the other way, to SetRectDimensions, ReportActivate and ReportClose of the window.
///
/// A window is made hidden. Its peer comes while the window is a plain QORFrmWindow; children come after that, then
/// Completed, then Shown unless the window was hidden meanwhile.
class QORFrmWindowPeer {
public:
    virtual ~QORFrmWindowPeer() = default;

    /// The title is another: GetBaseName.
    virtual void TitleChanged() = 0;

    /// Something was attached in the window's frames, or no longer is: GetViewerFrame, and from there its children.
    virtual void LayoutChanged() = 0;

    /// Another viewer is the one to select in: GetSelectableViewer.
    virtual void SelectableViewerChanged() = 0;

    /// The window is built to its end: everything that it begins with is in its frames. Called once.
    virtual void Completed() = 0;

    /// The window is to be seen from now on, or no longer; see IsShown. Neither activates it.
    virtual void Shown() = 0;
    virtual void Hidden() = 0;

    /// The window, which is shown, comes to the front and gets the keyboard.
    virtual void Raised() = 0;

    /// A person has closed the window, or its end was requested, and the dialog loop would have ended it by now, but
    /// somebody still holds the object: take the frame off the screen for good. The peer lives on with the object and
    /// may still be called.
    virtual void FrameEnded() = 0;
};

/// Makes the peers of frame windows.
class QORFrmWindowToolkit {
public:
    virtual ~QORFrmWindowToolkit() = default;

    /// The peer of a window that is just being made: a plain QORFrmWindow as yet, without children. Null when the
    /// toolkit can't show a window, which then has no viewer frame.
    virtual std::unique_ptr<QORFrmWindowPeer> MakePeer(QORFrmWindow& iWindow) = 0;
};
