#pragma once

#include "QORPlatform/toolkit/QORViewerPeer.h"

namespace planner::desktop {

/// A peer that shows nothing of its viewer. Base is QORViewerPeer or a class below it.
template <class Base>
class IdlePeer : public Base {
public:
    void ViewpointAdded(QORViewpoint&) override {}
    void EditorChanged(QORViewpoint&) override {}
    void ViewpointRemoved(QORViewpoint&) override {}
    void CameraChanged(QOR3DViewpoint&) override {}
    void FitAll(QORViewpoint&) override {}
    void ObjectShown(QORViewpoint&, QORBaseUnknown&) override {}
    void ObjectHidden(QORViewpoint&, QORBaseUnknown&) override {}
    void ObjectChanged(QORViewpoint&, QORBaseUnknown&, long) override {}
    void SelectionChanged(QORViewpoint&) override {}
    void Redraw() override {}
    void Draw() override {}
};

} // namespace planner::desktop
