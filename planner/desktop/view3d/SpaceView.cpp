#include "planner/desktop/view3d/SpaceView.h"

#include "planner/desktop/view3d/Scene.h"
#include "planner/desktop/view3d/SceneWidget.h"
#include "planner/desktop/widgets/Note.h"

#include <QSplitter>

#include <Standard_Failure.hxx>

#include <utility>

namespace planner::desktop {

SpaceView::SpaceView(std::shared_ptr<Graphics> graphics, QORViewer& viewer, QWidget* parent)
    : graphics_(std::move(graphics)), viewer_(viewer), widget_(new QSplitter(parent)) {
    widget_->setChildrenCollapsible(false);
}

/// The widget may stay, with empty pictures.
SpaceView::~SpaceView() {
    for (const auto& [viewpoint, scene] : scenes_) {
        if (scene) {
            scene->end();
        }
    }
}

QWidget& SpaceView::widget() {
    return *widget_;
}

SceneWidget* SpaceView::sceneOf(const QORViewpoint& viewpoint) const {
    const auto place = scenes_.find(&viewpoint);
    return place == scenes_.end() ? nullptr : place->second.data();
}

void SpaceView::ViewpointAdded(QORViewpoint& iViewpoint) {
    auto* const viewpoint = dynamic_cast<QOR3DViewpoint*>(&iViewpoint);
    if (!viewpoint || !widget_) {
        return;
    }
    const auto note = [&](const std::string& reason) {
        widget_->addWidget(new Note("No 3D picture: " + QString::fromStdString(reason), widget_));
    };
    try {
        auto scene = std::make_unique<SceneWidget>(graphics_, viewer_, *viewpoint, nullptr);
        scenes_[viewpoint] = scene.get();
        widget_->addWidget(scene.release());
    } catch (const Standard_Failure& failure) {
        note("OpenGL doesn't work on this display (" + reasonOf(failure) + ")");
    } catch (const std::exception& failure) {
        note(failure.what());
    }
}

void SpaceView::ViewpointRemoved(QORViewpoint& iViewpoint) {
    if (SceneWidget* const scene = sceneOf(iViewpoint)) {
        scene->end();
        scene->hide();
        scene->deleteLater(); // one of its handlers may be at work
    }
    scenes_.erase(&iViewpoint);
}

void SpaceView::CameraChanged(QOR3DViewpoint& iViewpoint) {
    if (SceneWidget* const scene = sceneOf(iViewpoint)) {
        scene->followCamera();
    }
}

void SpaceView::FitAll(QORViewpoint& iViewpoint) {
    if (SceneWidget* const scene = sceneOf(iViewpoint)) {
        scene->fitSoon();
    }
}

void SpaceView::ObjectShown(QORViewpoint& iViewpoint, QORBaseUnknown& iObject) {
    if (SceneWidget* const scene = sceneOf(iViewpoint)) {
        scene->scene()->note(iObject);
        scene->changed();
    }
}

void SpaceView::ObjectHidden(QORViewpoint& iViewpoint, QORBaseUnknown& iObject) {
    if (SceneWidget* const scene = sceneOf(iViewpoint)) {
        scene->scene()->drop(iObject);
        scene->changed();
    }
}

void SpaceView::ObjectChanged(QORViewpoint& iViewpoint, QORBaseUnknown& iObject, long) {
    ObjectShown(iViewpoint, iObject);
}

void SpaceView::SelectionChanged(QORViewpoint& iViewpoint) {
    if (SceneWidget* const scene = sceneOf(iViewpoint)) {
        scene->scene()->noteSelection();
        scene->changed();
    }
}

void SpaceView::Redraw() {
    Draw();
}

void SpaceView::Draw() {
    for (const auto& [viewpoint, scene] : scenes_) {
        if (scene) {
            scene->changed();
        }
    }
}

} // namespace planner::desktop
