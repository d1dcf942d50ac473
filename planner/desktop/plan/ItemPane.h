#pragma once

#include "planner/desktop/plan/PlanDrop.h"

#include <QWidget>

class QLineEdit;
class QListView;
class QMenu;
class QSortFilterProxyModel;

namespace planner::desktop {

class Choice;
class Findings;
class ItemListModel;

/// All items of the plan, with a search field. Items are dragged from here onto steps.
class ItemPane : public QWidget {
    Q_OBJECT

public:
    ItemPane(PlanSession& session, Choice& choice, const Findings& findings, QWidget* parent = nullptr);

    /// Whether the list has the keyboard.
    bool hasKeyboard() const;

    /// Shows an item, whatever was searched for; false for what is none.
    bool reveal(ModelObject& item);
    void editName(ModelObject& item);

    /// The selected items as rows, and removed from the plan.
    std::vector<PlanDrag::Entry> selectedRows() const;
    void removeSelected();

    void setMenu(QMenu* menu);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::vector<ModelObject*> selected() const;
    void chooseSelected();
    void showChoice();
    void tellWhetherEmpty();

    PlanSession& session_;
    Choice& choice_;
    ItemListModel* model_;
    QSortFilterProxyModel* found_;
    QLineEdit* search_;
    QListView* list_;
    bool following_ = false;
};

} // namespace planner::desktop
