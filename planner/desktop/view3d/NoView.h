#pragma once

#include "planner/desktop/view3d/ViewPeer.h"

namespace planner::desktop {

/// A viewer without a picture: the reason stands in its place. What is shown and selected in it is known to the
/// platform all the same.
class NoView final : public ViewPeer {
public:
    NoView(const QString& reason, QWidget* parent);

    QWidget& widget() override { return *widget_; }

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

private:
    QWidget* widget_;
};

} // namespace planner::desktop
