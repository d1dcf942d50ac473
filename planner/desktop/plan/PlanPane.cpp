#include "planner/desktop/plan/PlanPane.h"

#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/plan/PlanSession.h"
#include "planner/desktop/widgets/FetchNear.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QScopedValueRollback>

#include <unordered_set>

namespace planner::desktop {

PlanPane::PlanPane(PlanSession& session, Choice& choice, const Findings& findings, QWidget* parent)
    : QTreeView(parent), session_(session), choice_(choice), model_(new PlanTreeModel(session, findings, this)) {
    setObjectName("plan-tree");
    setAccessibleName("Plan");
    setModel(model_);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed | SelectedClicked);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setDropIndicatorShown(true);
    setAutoExpandDelay(600);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(PlanTreeModel::Name, QHeaderView::Stretch);
    header()->setSectionResizeMode(PlanTreeModel::What, QHeaderView::ResizeToContents);
    connect(model_, &PlanTreeModel::relationWanted, this,
            [this](ModelObject* owner, const std::vector<ModelObject*>& items) {
                askRelation(owner, items, QCursor::pos());
            });
    new FetchNear(*this, [this](const QModelIndex& above) { model_->fetchNext(above); });
    connect(&choice_, &Choice::changed, this, &PlanPane::showChoice);
    connect(&session_, &PlanSession::replaced, this, &PlanPane::openProcess, Qt::QueuedConnection);
    openProcess();
}

void PlanPane::openProcess() {
    setExpanded(model_->index(0, 0), true);
}

void PlanPane::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    std::erase_if(order_, [this](const QPersistentModelIndex& index) {
        return !index.isValid() || !selectionModel()->isSelected(index);
    });
    std::unordered_set<const void*> known;
    for (const QPersistentModelIndex& index : order_) {
        known.insert(index.internalPointer());
    }
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        if (known.count(index.internalPointer()) == 0) {
            order_.emplace_back(index);
        }
    }
    if (following_) {
        return;
    }
    const QScopedValueRollback<bool> following(following_, true);
    std::vector<ModelObject*> chosen;
    for (const QPersistentModelIndex& index : order_) {
        chosen.push_back(model_->rowAt(index).object);
    }
    choice_.choose(chosen);
}

/// Selects rows of what was chosen elsewhere, as far as they are in sight of an open tree.
void PlanPane::showChoice() {
    if (following_) {
        return;
    }
    const QScopedValueRollback<bool> following(following_, true);
    QItemSelection selection;
    QModelIndex first;
    for (const auto& object : choice_.objects()) {
        for (const QModelIndex& index : model_->indexesOf(*object.Get())) {
            selection.select(index, index.siblingAtColumn(PlanTreeModel::What));
            first = first.isValid() || visualRect(index).isEmpty() ? first : index;
        }
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (first.isValid()) {
        selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        scrollTo(first);
    }
}

bool PlanPane::reveal(ModelObject& object) {
    QModelIndex index = model_->reach(object);
    const auto made = index.isValid() ? std::vector<QModelIndex>() : model_->indexesOf(object);
    if (!made.empty()) {
        index = made.front();
    }
    if (!index.isValid()) {
        return false;
    }
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index, PositionAtCenter);
    return true;
}

void PlanPane::editName(ModelObject& object) {
    if (reveal(object) && (model_->flags(currentIndex()) & Qt::ItemIsEditable)) {
        setFocus();
        edit(currentIndex());
    }
}

void PlanPane::editCurrent() {
    if (model_->flags(currentIndex()) & Qt::ItemIsEditable) {
        edit(currentIndex());
    }
}

std::vector<PlanDrag::Entry> PlanPane::selectedRows() const {
    std::vector<PlanDrag::Entry> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows()) {
        const PlanRow row = model_->rowAt(index);
        rows.push_back({row, model_->rowAt(index.parent()).object, row.relation ? model_->listPosition(index) : 0});
    }
    return rows;
}

/// Makes the rows that are still to come below what is open.
void PlanPane::completeRows() {
    std::vector<QPersistentModelIndex> open{QModelIndex()};
    while (!open.empty()) {
        const QModelIndex above = open.back();
        open.pop_back();
        model_->fetchAll(above);
        for (int row = 0; row < model_->rowCount(above); ++row) {
            const QModelIndex index = model_->index(row, 0, above);
            if (isExpanded(index)) {
                open.emplace_back(index);
            }
        }
    }
}

void PlanPane::selectAll() {
    completeRows();
    QTreeView::selectAll();
}

QModelIndex PlanPane::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    if (action == MoveEnd) {
        completeRows();
    }
    return QTreeView::moveCursor(action, modifiers);
}

void PlanPane::removeSelected() {
    const std::vector<PlanDrag::Entry> rows = selectedRows();
    if (!rows.empty()) {
        removeRows(session_, rows);
    }
}

void PlanPane::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Delete)) {
        removeSelected();
        return;
    }
    QTreeView::keyPressEvent(event);
}

void PlanPane::contextMenuEvent(QContextMenuEvent* event) {
    if (menu_) {
        menu_->popup(event->reason() == QContextMenuEvent::Keyboard ? menuPlace() : event->globalPos());
    }
}

QPoint PlanPane::menuPlace() const {
    const QRect row = visualRect(currentIndex());
    const QPoint place = row.isEmpty() ? QPoint() : QPoint(row.left() + row.height(), row.bottom());
    return viewport()->mapToGlobal(place);
}

void PlanPane::askRelation(ModelObject* owner, const std::vector<ModelObject*>& items, QPoint place) {
    const std::vector<Relation> relations = relationsFor(*owner, items);
    if (relations.size() == 1) {
        putItems(session_, *owner, relations.front(), items);
        return;
    }
    auto* const menu = new QMenu(this);
    menu->setObjectName("relation-menu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addSection("Put it there as");
    for (const Relation relation : relations) {
        QAction* const action =
            menu->addAction(icon(QString::fromUtf8(relationText(relation).data())), relationName(relation));
        connect(action, &QAction::triggered, this,
                [this, owner, relation, items] { putItems(session_, *owner, relation, items); });
    }
    // Not from inside the drag, which has an event loop of its own.
    QMetaObject::invokeMethod(
        menu, [menu, place] { menu->popup(place); }, Qt::QueuedConnection);
}

} // namespace planner::desktop
