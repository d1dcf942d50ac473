#pragma once

#include <QObject>

class QAction;

namespace planner {
class ModelObject;
}

namespace planner::desktop {

class BomDesk;
class Choice;
class Findings;
class PlanSession;

/// The questions that a person asks of the plan, on what is chosen. They are about the bill in the current window, or
/// else about that of the process.
class Questions : public QObject {
    Q_OBJECT

public:
    Questions(PlanSession& session, Choice& choice, BomDesk& desk, Findings& findings, QObject* parent);

    QAction* why;        ///< is the chosen item in the bill, or isn't it
    QAction* billAtStep; ///< when the chosen step is finished
    QAction* check;      ///< what is wrong in the plan
    QAction* compare;    ///< the bill of the plan's file with that of the plan as it is

Q_SIGNALS:
    /// The answer as rich text.
    void answered(const QString& text);

private:
    QAction* make(const QString& text, const QString& iconName, const QKeySequence& keys,
                  QString (Questions::*answer)());
    void enable();
    ModelObject& root() const;
    QString answerWhy();
    QString answerBillAtStep();
    QString answerCheck();
    QString answerCompare();

    PlanSession& session_;
    Choice& choice_;
    BomDesk& desk_;
    Findings& findings_;
};

} // namespace planner::desktop
