#include "planner/desktop/bom/BomDesk.h"

#include "planner/desktop/bom/BomArea.h"
#include "planner/desktop/plan/PlanSession.h"
#include "planner/desktop/toolkit/FramePane.h"

#include "planner/model/Activity.h"

#include "QORPlatform/dialog/QORDialogLoop.h"
#include "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer.h"

namespace planner::desktop {

BomDesk::BomDesk(PlanSession& session, Choice& choice, BomArea& area)
    : session_(session), toolkit_(choice, [&area](FramePane& pane) { area.add(pane); }) {
    connect(&session_, &PlanSession::aboutToReplace, this, &BomDesk::closeAll);
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
    windows_.emplace_back(new VXMFabBomViewer(root.name().c_str(), &session_.frmEditor(), handle, mode));
}

void BomDesk::closeAll() {
    for (const auto& window : windows_) {
        if (VXMFabBomViewer* const open = window.Get()) {
            open->ReportClose();
        }
    }
    windows_.clear();
    QORDialogLoop::Get().Run();
}

} // namespace planner::desktop
