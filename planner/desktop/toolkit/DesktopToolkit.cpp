#include "planner/desktop/toolkit/DesktopToolkit.h"

#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/toolkit/FramePane.h"
#include "planner/desktop/toolkit/TreePeer.h"
#include "planner/desktop/view3d/IdlePeer.h"
#include "planner/desktop/view3d/MakeView.h"

#include "QORPlatform/frame/QORFrmWindow.h"
#include "QORPlatform/navigation/QORNavigBox.h"
#include "QORPlatform/visualization/QORViewer.h"

#include <utility>

namespace planner::desktop {

/// The pane is made with the peer and placed when the window is complete.
class WindowPeer final : public QORFrmWindowPeer {
public:
    WindowPeer(QORFrmWindow& window, const DesktopToolkit::Place& place)
        : pane_(new FramePane(window)), place_(place) {}
    ~WindowPeer() override {
        FrameEnded();
        delete pane_.data();
    }

    /// Null when whoever owns it has ended.
    FramePane* pane() const { return pane_; }

    void TitleChanged() override { tell(&FramePane::titleChanged); }
    void LayoutChanged() override {}
    void SelectableViewerChanged() override {}
    void Completed() override {
        if (pane_) {
            place_(*pane_);
        }
    }
    void Shown() override { tell(&FramePane::shown); }
    void Hidden() override { tell(&FramePane::hidden); }
    void Raised() override { tell(&FramePane::raised); }
    void FrameEnded() override {
        if (!std::exchange(ended_, true)) {
            tell(&FramePane::ended);
        }
    }

private:
    void tell(void (FramePane::*signal)()) {
        if (pane_) {
            Q_EMIT(pane_->*signal)();
        }
    }

    QPointer<FramePane> pane_;
    DesktopToolkit::Place place_;
    bool ended_ = false;
};

namespace {

/// The pane of the window that a dialog stands in; null where that isn't shown.
FramePane* paneAround(const QORDialog& dialog) {
    for (QORDialog* above = dialog.GetParent(); above; above = above->GetParent()) {
        if (const auto* const window = dynamic_cast<QORFrmWindow*>(above)) {
            return window->GetPeer() ? static_cast<WindowPeer*>(window->GetPeer())->pane() : nullptr;
        }
    }
    return nullptr;
}

} // namespace

DesktopToolkit::DesktopToolkit(Place place) : place_(std::move(place)) {
    QORSetToolkit(this);
    bringIcons();
}

DesktopToolkit::~DesktopToolkit() {
    QORSetToolkit(nullptr);
}

std::unique_ptr<QORFrmWindowPeer> DesktopToolkit::MakePeer(QORFrmWindow& window) {
    return std::make_unique<WindowPeer>(window, place_);
}

std::unique_ptr<QORViewerPeer> DesktopToolkit::MakePeer(QORViewer& viewer) {
    FramePane* const pane = paneAround(viewer);
    if (!pane || dynamic_cast<QORNavigation2DViewer*>(&viewer)) {
        // What a viewer of a plane would paint is the tree, which has a widget of its own.
        return std::make_unique<IdlePeer<QORViewerPeer>>();
    }
    auto peer = makeView(viewer, pane);
    pane->setView(&peer->widget());
    return peer;
}

std::unique_ptr<QORNavigBoxPeer> DesktopToolkit::MakePeer(QORNavigBox& box) {
    FramePane* const pane = paneAround(box);
    if (!pane) {
        return nullptr;
    }
    auto peer = std::make_unique<TreePeer>(box, pane);
    pane->setTree(&peer->view());
    return peer;
}

} // namespace planner::desktop
