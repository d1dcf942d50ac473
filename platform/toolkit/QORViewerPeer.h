#pragma once

#include <memory>

class QOR3DViewpoint;
class QORBaseUnknown;
class QORViewer;
class QORViewpoint;

/// What a viewer needs from a toolkit. Called on the thread of the dialog loop, in the middle of other work: note what
/// has changed, ask the viewer and the visualization manager when it is time to paint, and run no event loop here.
/// What a person does goes the other way, to SetGraphicSize, ReportHover, ReportPick and ReportPicks of the viewer and
/// ReportCamera of its viewpoints.
class QORViewerPeer {
public:
    virtual ~QORViewerPeer() = default;

    /// A viewpoint has come, got an editor, or gone with all that was shown in it.
    virtual void ViewpointAdded(QORViewpoint& iViewpoint) = 0;
    virtual void EditorChanged(QORViewpoint& iViewpoint) = 0;
    virtual void ViewpointRemoved(QORViewpoint& iViewpoint) = 0;

    /// Somebody else than the peer has moved the camera: GetCamera.
    virtual void CameraChanged(QOR3DViewpoint& iViewpoint) = 0;

    /// Move the camera so that all that is shown in the viewpoint is seen, as soon as control is back in the host, and
    /// report it.
    virtual void FitAll(QORViewpoint& iViewpoint) = 0;

    /// An object is shown in a viewpoint of the viewer from now on, or no longer, by whatever number of paths. iObject
    /// is the implementation.
    virtual void ObjectShown(QORViewpoint& iViewpoint, QORBaseUnknown& iObject) = 0;
    virtual void ObjectHidden(QORViewpoint& iViewpoint, QORBaseUnknown& iObject) = 0;

    /// Shape or place of an object that is shown in the viewpoint are others. What was made from it is out of date
    /// unless it was made for this revision; see QORVisManager::GetRevision.
    virtual void ObjectChanged(QORViewpoint& iViewpoint, QORBaseUnknown& iObject, long iRevision) = 0;

    /// Another selection set is tied to the viewpoint, or none, or another object is in the one that is.
    virtual void SelectionChanged(QORViewpoint& iViewpoint) = 0;

    /// Paint everything anew. Objects that have changed were told of by now: what was made from the others holds.
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
