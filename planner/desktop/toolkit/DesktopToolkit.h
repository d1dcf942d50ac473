#pragma once

#include "QORPlatform/toolkit/QORToolkit.h"

#include <functional>

namespace planner::desktop {

class FramePane;

/// The platform's toolkit on Qt: a pane for each window, with the tree of its box and the widget of its viewer inside.
/// Is the toolkit of all that is made while it lives.
class DesktopToolkit final : public QORToolkit {
public:
    /// Puts the pane of a window that is complete where it will be seen, and becomes its parent.
    using Place = std::function<void(FramePane& pane)>;

    explicit DesktopToolkit(Place place);
    ~DesktopToolkit() override;

    std::unique_ptr<QORFrmWindowPeer> MakePeer(QORFrmWindow& window) override;
    std::unique_ptr<QORViewerPeer> MakePeer(QORViewer& viewer) override;
    std::unique_ptr<QORNavigBoxPeer> MakePeer(QORNavigBox& box) override;

private:
    Place place_;
};

} // namespace planner::desktop
