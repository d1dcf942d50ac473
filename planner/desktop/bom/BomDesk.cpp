#include "planner/desktop/bom/BomDesk.h"

#include "planner/desktop/bom/BomArea.h"
#include "planner/desktop/bom/BomSide.h"
#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/PlanSession.h"
#include "planner/desktop/toolkit/FramePane.h"

#include "planner/model/Activity.h"

#include "QORPlatform/dialog/QORDialogLoop.h"
#include "QORPlatform/toolkit/QORProgress.h"
#include "QORPlatform/visualization/QORI3DGeoVisu.h"
#include "QORPlatform/visualization/QORVisManager.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer.h"
#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"
#include "VXMBomInfrastructure/generation/VXMTooManyNodes.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace planner::desktop {

namespace {

constexpr std::array<const char*, 4> kModeIcons{"", "bill", "space", "bill-space"};

std::string titleOf(const ModelObject& root, int mode) {
    constexpr std::array<const char*, 4> kTitles{"", "Bill of ", "Items of ", "Bill and items of "};
    return kTitles[static_cast<std::size_t>(mode)] + root.name();
}

/// Brings what a window shows in space in line with its bill. By itself it does so when the number of items has
/// changed; here it also gets the item that takes the place of another, and the one that has got a shape.
void followItems(VXMFabBomViewer& window) {
    const QORViewer* const viewer = window.GetSelectableViewer();
    const QORViewpoint* const viewpoint = viewer ? viewer->GetMain3DViewpoint() : nullptr;
    if (!viewpoint || !window.GetGenerator()) {
        return;
    }
    const QORListValQORBaseUnknown_var items = window.GetGenerator()->GetPreviewObjects();
    std::unordered_set<const QORBaseUnknown*> visible;
    for (const QORBaseUnknown_var& item : items) {
        if (QORI3DGeoVisu_var(item)) {
            visible.insert(item.Impl());
        }
    }
    const QORListValQORBaseUnknown_var shown = QORVisManager::GetVisManager()->GetShown(*viewpoint);
    QORListValQORBaseUnknown_var gone;
    for (const QORBaseUnknown_var& each : shown) {
        if (!visible.contains(each.Impl())) {
            gone.Append(each);
        }
    }
    const bool isMissing = static_cast<int>(visible.size()) > shown.Size() - gone.Size();
    if (gone.Size() > 0) {
        window.RemoveBOMItems(gone);
    }
    if (gone.Size() > 0 || isMissing) {
        window.Visualize(items);
    }
}

} // namespace

BomDesk::BomDesk(PlanSession& session, Choice& choice, BomArea& area)
    : session_(session), choice_(choice), area_(area), toolkit_([this](FramePane& pane) {
          placed_ = &pane;
          area_.add(pane);
      }) {
    connect(&session_, &PlanSession::aboutToReplace, this, [this] {
        keepOpen();
        closedPath_ = session_.path();
        closeAll();
    });
    connect(&session_, &PlanSession::changed, this, &BomDesk::followPlan);
    connect(&session_, &PlanSession::replaced, this, [this] {
        if (!closedPath_.isEmpty() && closedPath_ == session_.path()) {
            openAgain();
        }
    });
}

BomDesk::~BomDesk() {
    closeAll();
}

bool BomDesk::isRoot(const ModelObject& object) {
    return object.sort() == Sort::Resource ||
           (object.sort() == Sort::Activity && static_cast<const Activity&>(object).isStep());
}

FlowObject& BomDesk::usualRoot(const Plan& plan) {
    const bool hasProcess = !plan.process()->children.empty() || plan.resources.empty();
    return hasProcess ? static_cast<FlowObject&>(*plan.process()) : **plan.resources.begin();
}

void BomDesk::open(ModelObject& root, int mode) {
    QORBaseUnknown_var handle(&root);
    try {
        auto* const window = new VXMFabBomViewer(titleOf(root, mode).c_str(), &session_.frmEditor(), handle, mode);
        finish(*window, root, mode);
    } catch (const QORCancelled&) {
        Q_EMIT said("The bill was cancelled; no window was opened.");
    } catch (const VXMTooManyNodes& error) {
        Q_EMIT said(QString::fromUtf8(error.what()));
    }
}

void BomDesk::finish(VXMFabBomViewer& window, ModelObject& root, int mode) {
    windows_.push_back({&window, QORVar<ModelObject>(&root), mode});
    placed_->setWindowIcon(icon(kModeIcons[static_cast<std::size_t>(mode)]));
    auto* const side = new BomSide(window, *placed_, root, choice_, (mode & 1) != 0);
    connect(side, &BomSide::said, this, &BomDesk::said);
    connect(side, &BomSide::menuAsked, this, &BomDesk::menuAsked);
    connect(&session_, &PlanSession::changed, side, &BomSide::remarkSoon);
    Q_EMIT area_.currentChanged();
}

BomSide* BomDesk::currentSide() const {
    const FramePane* const pane = area_.current();
    return pane ? pane->findChild<BomSide*>() : nullptr;
}

ModelObject* BomDesk::currentRoot() const {
    const FramePane* const pane = area_.current();
    const auto found = std::find_if(windows_.begin(), windows_.end(), [&](const Open& each) {
        return pane && each.window.Get() && pane->window() == each.window.Get();
    });
    return found == windows_.end() ? nullptr : found->root.Get();
}

void BomDesk::forgetClosed() {
    std::erase_if(windows_, [](const Open& each) { return !each.window.Get() || each.window.Get()->IsClosed(); });
}

void BomDesk::followPlan() {
    for (const Open& each : windows_) {
        VXMFabBomViewer* const window = each.window.Get();
        if (window && !window->IsClosed()) {
            window->SetBaseName(titleOf(*each.root.Get(), each.mode).c_str());
            followItems(*window);
        }
    }
}

/// Remembers what is open.
void BomDesk::keepOpen() {
    forgetClosed();
    closed_.clear();
    for (const Open& each : windows_) {
        closed_.push_back({each.root->id(), each.mode});
    }
}

VXMBomGenerator* BomDesk::generatorOn(const ModelObject& root) const {
    for (const Open& each : windows_) {
        const VXMFabBomViewer* const window = each.window.Get();
        if (each.root.Get() == &root && window && !window->IsClosed() && !window->IsOutOfDate()) {
            return window->GetGenerator();
        }
    }
    return nullptr;
}

int BomDesk::count() const {
    return static_cast<int>(area_.panes().size());
}

void BomDesk::closeAll() {
    for (const Open& each : windows_) {
        if (VXMFabBomViewer* const window = each.window.Get()) {
            window->ReportClose();
        }
    }
    windows_.clear();
    QORDialogLoop::Get().Run();
}

void BomDesk::reopen() {
    keepOpen();
    closeAll();
    openAgain();
}

void BomDesk::openAgain() {
    for (const Closed& each : std::exchange(closed_, {})) {
        ModelObject* const root = each.rootId.empty() ? session_.plan().process() : session_.plan().find(each.rootId);
        if (root && isRoot(*root)) {
            open(*root, each.mode);
        }
    }
}

} // namespace planner::desktop
