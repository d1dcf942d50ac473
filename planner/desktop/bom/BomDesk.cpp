#include "planner/desktop/bom/BomDesk.h"

#include "planner/desktop/bom/BomArea.h"
#include "planner/desktop/bom/BomSide.h"
#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/PlanSession.h"
#include "planner/desktop/toolkit/FramePane.h"

#include "planner/model/Activity.h"

#include "QORPlatform/dialog/QORDialogLoop.h"
#include "QORPlatform/toolkit/QORProgress.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer.h"

#include <array>

namespace planner::desktop {

namespace {

constexpr std::array<const char*, 4> kModeIcons{"", "bill", "space", "bill-space"};

std::string titleOf(const ModelObject& root, int mode) {
    constexpr std::array<const char*, 4> kTitles{"", "Bill of ", "Items of ", "Bill and items of "};
    return kTitles[static_cast<std::size_t>(mode)] + root.name();
}

} // namespace

BomDesk::BomDesk(PlanSession& session, Choice& choice, BomArea& area)
    : session_(session), choice_(choice), area_(area), toolkit_([this](FramePane& pane) {
          placed_ = &pane;
          area_.add(pane);
      }) {
    connect(&session_, &PlanSession::aboutToReplace, this, [this] {
        forgetClosed();
        closed_ = windows_;
        closedPath_ = session_.path();
        closeAll();
    });
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

void BomDesk::open(ModelObject& root, int mode) {
    QORBaseUnknown_var handle(&root);
    try {
        auto* const window = new VXMFabBomViewer(titleOf(root, mode).c_str(), &session_.frmEditor(), handle, mode);
        finish(*window, root, mode);
    } catch (const QORCancelled&) {
        Q_EMIT said("The bill was cancelled; no window was opened.");
    }
}

void BomDesk::finish(VXMFabBomViewer& window, ModelObject& root, int mode) {
    windows_.push_back({&window, root.id(), mode});
    placed_->setWindowIcon(icon(kModeIcons[static_cast<std::size_t>(mode)]));
    auto* const side = new BomSide(window, *placed_, root, choice_, (mode & 1) != 0);
    connect(side, &BomSide::said, this, &BomDesk::said);
    connect(&session_, &PlanSession::changed, side, &BomSide::remarkSoon);
    Q_EMIT area_.currentChanged();
}

BomSide* BomDesk::currentSide() const {
    const FramePane* const pane = area_.current();
    return pane ? pane->findChild<BomSide*>() : nullptr;
}

void BomDesk::forgetClosed() {
    std::erase_if(windows_, [](const Open& each) { return !each.window.Get() || each.window.Get()->IsClosed(); });
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
    forgetClosed();
    closed_ = windows_;
    closeAll();
    openAgain();
}

void BomDesk::openAgain() {
    for (const Open& each : std::exchange(closed_, {})) {
        ModelObject* const root = each.rootId.empty() ? session_.plan().process() : session_.plan().find(each.rootId);
        if (root && isRoot(*root)) {
            open(*root, each.mode);
        }
    }
}

} // namespace planner::desktop
