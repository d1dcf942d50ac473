#pragma once

#include "planner/desktop/toolkit/DesktopToolkit.h"

#include "planner/model/FastenerSettings.h"

#include "QORPlatform/dialog/QORWatch.h"

#include <QObject>
#include <QPointer>

#include <vector>

class VXMFabBomViewer;

namespace planner {
class ModelObject;
}

namespace planner::desktop {

class BomArea;
class BomSide;
class Choice;
class PlanSession;

/// Opens the windows of bills, and closes them before their plan goes. The same ones are opened again when the plan is
/// read anew.
class BomDesk : public QObject {
    Q_OBJECT

public:
    BomDesk(PlanSession& session, Choice& choice, BomArea& area);
    ~BomDesk() override;

    /// Whether an object can be the root of a bill: an activity that is a step, or a resource.
    static bool isRoot(const ModelObject& object);

    /// Opens a window in a display mode on such an object.
    void open(ModelObject& root, int mode);

    /// The bill's side of the current window, null where there is none.
    BomSide* currentSide() const;

    int count() const;
    void closeAll();

    /// Opens all windows anew, after settings have changed that only new windows go by.
    void reopen();

Q_SIGNALS:
    /// Something to tell a person of a window.
    void said(const QString& text);

private:
    struct Open {
        QORWatch<VXMFabBomViewer> window;
        std::string rootId;
        int mode;
    };

    void finish(VXMFabBomViewer& window, ModelObject& root, int mode);
    void forgetClosed();
    void openAgain();

    PlanSession& session_;
    Choice& choice_;
    BomArea& area_;
    FastenerSettings settings_;
    QPointer<FramePane> placed_; // of the window that is being made
    DesktopToolkit toolkit_;
    std::vector<Open> windows_;
    std::vector<Open> closed_; // with the plan's last state
    QString closedPath_;
};

} // namespace planner::desktop
