#pragma once

#include "planner/desktop/view3d/IdlePeer.h"
#include "planner/desktop/view3d/ViewPeer.h"

namespace planner::desktop {

/// A viewer without a picture: the reason stands in its place. What is shown and selected in it is known to the
/// platform all the same.
class NoView final : public IdlePeer<ViewPeer> {
public:
    NoView(const QString& reason, QWidget* parent);

    QWidget& widget() override { return *widget_; }

private:
    QWidget* widget_;
};

} // namespace planner::desktop
