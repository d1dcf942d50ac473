#pragma once

#include "planner/desktop/plan/PlanDrop.h"
#include "planner/desktop/plan/PlanTreeModel.h"

#include <QTreeView>

class QMenu;

namespace planner::desktop {

class Choice;
class Findings;

/// The plan as a tree that a person works in: choosing, naming, dragging, removing.
class PlanPane : public QTreeView {
    Q_OBJECT

public:
    PlanPane(PlanSession& session, Choice& choice, const Findings& findings, QWidget* parent = nullptr);

    /// The menu of a right click.
    void setMenu(QMenu* menu) { menu_ = menu; }

    /// Opens the tree down to an activity, a resource or a behaviour, or to a row of an item that was made, and shows
    /// it; false when there is none.
    bool reveal(ModelObject& object);

    /// Opens the row of an activity, a resource or a behaviour, so that what is below is seen.
    void open(ModelObject& object) { setExpanded(model_->reach(object), true); }

    /// Lets the name of a revealed object be typed.
    void editName(ModelObject& object);

    /// Lets the name of the present row be typed, where it has one.
    void editCurrent();

    /// The selected rows, and their objects removed.
    std::vector<PlanDrag::Entry> selectedRows() const;
    void removeSelected();

    /// Asks in a menu at a place on the screen in which relation items come to an object, and puts them there; where
    /// there is only one, without asking.
    void askRelation(ModelObject* owner, const std::vector<ModelObject*>& items, QPoint place);

    /// Where a menu for the present row comes up on the screen.
    QPoint menuPlace() const;

    /// Selects every row below what is open, be it made yet or not.
    void selectAll() override;

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void showChoice();
    void openProcess();
    void completeRows();

    PlanSession& session_;
    Choice& choice_;
    PlanTreeModel* model_;
    QMenu* menu_ = nullptr;
    std::vector<QPersistentModelIndex> order_; // selected rows, as they were chosen
    bool following_ = false;
};

} // namespace planner::desktop
