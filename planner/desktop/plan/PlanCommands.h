#pragma once

#include "planner/model/Kinds.h"

#include <QObject>

#include <array>
#include <cstddef>

class QAction;
class QMenu;

namespace planner {
class Activity;
class FlowObject;
class ModelObject;
class Plan;
} // namespace planner

namespace planner::desktop {

class Choice;
class PlanSession;

/// The edits that a person makes by menu, tool bar and keyboard. They work on what is chosen.
class PlanCommands : public QObject {
    Q_OBJECT

public:
    PlanCommands(PlanSession& session, Choice& choice, QObject* parent);

    QAction* addStep;      ///< behind the chosen step, linked in; at the end of the chosen activity or behaviour
    QAction* addInside;    ///< a step in the chosen one
    QAction* addResource;  ///< in the chosen resource, or at the top
    QAction* addBehaviour; ///< to the chosen resource
    QAction* moveUp;       ///< the chosen activity or resource in front of the one before it
    QAction* moveDown;     ///< behind the next one
    QAction* link;         ///< what is chosen, each with the next in the order of choosing
    std::array<QAction*, kItemKinds.size()> addItem;     ///< to the plan, and to the chosen step
    std::array<QAction*, kActivityKinds.size()> setKind; ///< of the chosen activities

Q_SIGNALS:
    /// An object was added, an item to a list of the owner (null for none): show it, and let its name be typed.
    void added(planner::ModelObject* object, planner::ModelObject* owner);

private:
    QAction* make(const QString& text, const QString& iconName, const QKeySequence& keys, void (PlanCommands::*run)());
    void enable();
    void runAddStep();
    void runAddInside();
    void runAddResource();
    void runAddBehaviour();
    void runMoveUp() { move(-1); }
    void runMoveDown() { move(1); }
    void move(std::ptrdiff_t by);
    void runLink();
    void runAddItem(ItemKind kind);
    void runSetKind(ActivityKind kind);
    void addStepTo(FlowObject& container, Activity* before);

    PlanSession& session_;
    Choice& choice_;
};

} // namespace planner::desktop
