#pragma once

#include "planner/desktop/view3d/ViewPeer.h"

#include <QPointer>

#include <memory>
#include <unordered_map>

class QORViewer;
class QSplitter;

namespace planner::desktop {

class Graphics;
class SceneWidget;

/// A viewer into space: its viewpoints side by side, each a picture of its own. A viewpoint of a plane has none.
class SpaceView final : public ViewPeer {
public:
    SpaceView(std::shared_ptr<Graphics> graphics, QORViewer& viewer, QWidget* parent);
    ~SpaceView() override;

    QWidget& widget() override;

    void ViewpointAdded(QORViewpoint& iViewpoint) override;
    void EditorChanged(QORViewpoint&) override {}
    void ViewpointRemoved(QORViewpoint& iViewpoint) override;
    void CameraChanged(QOR3DViewpoint& iViewpoint) override;
    void FitAll(QORViewpoint& iViewpoint) override;
    void ObjectShown(QORViewpoint& iViewpoint, QORBaseUnknown& iObject) override;
    void ObjectHidden(QORViewpoint& iViewpoint, QORBaseUnknown& iObject) override;
    void ObjectChanged(QORViewpoint& iViewpoint, QORBaseUnknown& iObject, long iRevision) override;
    void SelectionChanged(QORViewpoint& iViewpoint) override;
    void Redraw() override;
    void Draw() override;

private:
    SceneWidget* sceneOf(const QORViewpoint& viewpoint) const;

    std::shared_ptr<Graphics> graphics_;
    QORViewer& viewer_;
    QPointer<QSplitter> widget_;
    std::unordered_map<const QORViewpoint*, QPointer<SceneWidget>> scenes_;
};

} // namespace planner::desktop
