#pragma once

#include "planner/desktop/plan/PlanSession.h"

#include <QFormLayout>

#include <functional>
#include <vector>

class QLineEdit;

namespace planner::desktop {

class Choice;

/// The rows of a property pane while they are made: widgets that edit the plan, and what reads their values anew.
struct Form {
    PlanSession& session;
    Choice& choice;
    QFormLayout& rows;
    std::vector<std::function<void()>>& readers;

    using Read = std::function<QString()>;
    using Write = std::function<void(PlanEditor&, const std::string&)>;

    /// Reads at once, and whenever the plan has changed.
    void follow(std::function<void()> read);

    /// A text that is written when the field is left or Enter is pressed.
    QLineEdit* addText(const QString& label, const Read& read, const Write& write);

    /// A text that can't be changed.
    void addFact(const QString& label, const Read& read);

    /// A heading above the rows that follow.
    void addHeading(const QString& text);
};

/// Rows for the objects of each sort, and for the plan itself.
void addItemRows(Form& form, Item& item);
void addActivityRows(Form& form, Activity& activity);
void addFlowRows(Form& form, FlowObject& object);
void addPlanRows(Form& form);

/// Rows for what a fastener joins.
void addJoinRows(Form& form, Fastener& fastener);

/// Rows for the shape of an item and the place where it stands.
void addShapeRows(Form& form, Item& item);

} // namespace planner::desktop
