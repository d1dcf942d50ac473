#pragma once

#include "planner/desktop/toolkit/DesktopToolkit.h"

#include "planner/model/FastenerSettings.h"

#include "QORPlatform/dialog/QORWatch.h"

#include <QObject>

#include <vector>

class VXMFabBomViewer;

namespace planner {
class ModelObject;
}

namespace planner::desktop {

class BomArea;
class PlanSession;

/// Opens the windows of bills, and closes them before their plan goes.
class BomDesk : public QObject {
    Q_OBJECT

public:
    BomDesk(PlanSession& session, Choice& choice, BomArea& area);
    ~BomDesk() override;

    /// Whether an object can be the root of a bill: an activity that is a step, or a resource.
    static bool isRoot(const ModelObject& object);

    /// Opens a window in a display mode on such an object.
    void open(ModelObject& root, int mode);

    void closeAll();

private:
    PlanSession& session_;
    FastenerSettings settings_;
    DesktopToolkit toolkit_;
    std::vector<QORWatch<VXMFabBomViewer>> windows_;
};

} // namespace planner::desktop
