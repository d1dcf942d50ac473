#pragma once

#include <memory>

class QORBaseUnknown;
class QORViewer;
class QORViewpoint;

/// What a viewer needs from a toolkit. Called on the thread of the dialog loop, in the middle of other work: note what
/// has changed, ask the viewer and the visualization manager when it is time to paint, and run no event loop here.
/// What a person does goes the other way, to SetGraphicSize and ReportPick of the viewer.
class QORViewerPeer {
public:
    virtual ~QORViewerPeer() = default;

    /// A viewpoint has come, or got an editor.
    virtual void ViewpointAdded(QORViewpoint& iViewpoint) = 0;
    virtual void EditorChanged(QORViewpoint& iViewpoint) = 0;

    /// An object is shown in a viewpoint of the viewer from now on, or no longer. iObject is the implementation.
    virtual void ObjectShown(QORViewpoint& iViewpoint, QORBaseUnknown& iObject) = 0;
    virtual void ObjectHidden(QORViewpoint& iViewpoint, QORBaseUnknown& iObject) = 0;

    /// Another selection set is tied to the viewpoint, or none, or another object is in the one that is.
    virtual void SelectionChanged(QORViewpoint& iViewpoint) = 0;

    /// Everything that was made from the objects is out of date.
    virtual void Redraw() = 0;

    /// Bring onto the screen what has changed, as soon as control is back in the host.
    virtual void Draw() = 0;
};

/// Makes the peers of viewers.
class QORViewerToolkit {
public:
    virtual ~QORViewerToolkit() = default;

    /// The peer of a viewer that is just being made; null when the toolkit can't show it, which leaves a 3D viewer
    /// without its main viewpoint.
    virtual std::unique_ptr<QORViewerPeer> MakePeer(QORViewer& iViewer) = 0;
};
