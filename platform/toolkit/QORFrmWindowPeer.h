#pragma once

#include <memory>

class QORFrmWindow;

/// What a window of the application's frame needs from a toolkit. Called on the thread of the dialog loop, in the
/// middle of other work: note what has changed, ask the window when it is time to paint, and run no event loop here.
/// What a person does goes the other way, to SetRectDimensions and ReportClose of the window.
class QORFrmWindowPeer {
public:
    virtual ~QORFrmWindowPeer() = default;

    /// The title is another: GetBaseName.
    virtual void TitleChanged() = 0;

    /// Something was attached in the window's frames, or no longer is: GetViewerFrame, and from there its children.
    virtual void LayoutChanged() = 0;

    /// Another viewer is the one to select in: GetSelectableViewer.
    virtual void SelectableViewerChanged() = 0;
};

/// Makes the peers of frame windows.
class QORFrmWindowToolkit {
public:
    virtual ~QORFrmWindowToolkit() = default;

    /// The peer of a window that is just being made: a plain QORFrmWindow as yet, without children. Null when the
    /// toolkit can't show a window, which then has no viewer frame.
    virtual std::unique_ptr<QORFrmWindowPeer> MakePeer(QORFrmWindow& iWindow) = 0;
};
