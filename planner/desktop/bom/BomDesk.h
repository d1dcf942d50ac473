#pragma once

#include "planner/desktop/toolkit/DesktopToolkit.h"

#include "planner/model/FastenerSettings.h"
#include "planner/model/Plan.h"

#include "QORPlatform/dialog/QORWatch.h"

#include <QObject>
#include <QPointer>

#include <vector>

class VXMBomGenerator;
class VXMFabBomViewer;

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

    /// The root of the bill that a person means who names none: the process, or the first resource of a plan that has
    /// nothing else.
    static FlowObject& usualRoot(const Plan& plan);

    /// Opens a window in a display mode on such an object.
    void open(ModelObject& root, int mode);

    /// The bill's side of the current window, null where there is none.
    BomSide* currentSide() const;

    /// The object that the bill in the current window is on; null where there is none.
    ModelObject* currentRoot() const;

    /// The generator of an open bill on an object that shows the plan as it is now; null where there is none.
    VXMBomGenerator* generatorOn(const ModelObject& root) const;

    int count() const;
    void closeAll();

    /// Opens all windows anew, after settings have changed that only new windows go by.
    void reopen();

Q_SIGNALS:
    /// Something to tell a person of a window.
    void said(const QString& text);

    /// A person wants the menu of what is chosen at a place on the screen.
    void menuAsked(QPoint place);

private:
    struct Open {
        QORWatch<VXMFabBomViewer> window;
        QORVar<ModelObject> root;
        int mode;
    };
    /// A window to be opened again: its root may be another object by then.
    struct Closed {
        std::string rootId;
        int mode;
    };

    void finish(VXMFabBomViewer& window, ModelObject& root, int mode);
    void forgetClosed();
    void followPlan();
    void keepOpen();
    void openAgain();

    PlanSession& session_;
    Choice& choice_;
    BomArea& area_;
    FastenerSettings settings_;
    QPointer<FramePane> placed_; // of the window that is being made
    DesktopToolkit toolkit_;
    std::vector<Open> windows_;
    std::vector<Closed> closed_; // with the plan's last state
    QString closedPath_;
};

} // namespace planner::desktop
