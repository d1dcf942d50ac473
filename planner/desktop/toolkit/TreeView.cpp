#include "planner/desktop/toolkit/TreeView.h"

#include "planner/desktop/toolkit/TreeModel.h"
#include "planner/desktop/widgets/FetchNear.h"

#include "QORPlatform/navigation/QORNavigBox.h"

#include <QScopedValueRollback>

#include <deque>

namespace planner::desktop {

namespace {

/// Rows that a portion brings: a few screens.
constexpr int kPortion = 200;

} // namespace

TreeView::TreeView(QORNavigBox& box, TreeModel& model, QWidget* parent) : QTreeView(parent), box_(&box), model_(model) {
    box.SetPortion(kPortion);
    setModel(&model);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    followSettings();
    new FetchNear(*this, [this](const QModelIndex& above) { fetch(above); });
    connect(this, &QTreeView::expanded, this, &TreeView::reportOpen);
    connect(this, &QTreeView::collapsed, this, &TreeView::reportClosed);
    connect(this, &QTreeView::activated, this, [this](const QModelIndex& index) {
        if (box_) {
            box_->ReportAction(*model_.rowAt(index));
        }
    });
}

void TreeView::release() {
    box_ = nullptr;
    setModel(nullptr);
}

void TreeView::followSettings() {
    const QORNavigController* const controller = box_ ? box_->GetController() : nullptr;
    const bool several = controller && controller->GetExtensionMode() == kQORExtensionMultiple;
    setSelectionMode(several ? ExtendedSelection : SingleSelection);
}

void TreeView::reportOpen(const QModelIndex& index) {
    if (box_) {
        box_->ReportExpand(*model_.rowAt(index));
    }
}

void TreeView::reportClosed(const QModelIndex& index) {
    if (box_) {
        box_->ReportCollapse(*model_.rowAt(index));
    }
}

void TreeView::showSelection() {
    if (!box_ || showing_) {
        return;
    }
    const QScopedValueRollback<bool> showing(showing_, true);
    QItemSelection selection;
    for (const QORNavigInstance* row : box_->GetSelection()) {
        const QModelIndex index = model_.indexOf(row);
        selection.select(index, index);
        if (!visualRect(index).isEmpty()) { // it would be opened down to otherwise
            selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
        }
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

void TreeView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    if (!box_ || showing_ || model_.isRemoving()) {
        return;
    }
    {
        const QScopedValueRollback<bool> showing(showing_, true);
        std::vector<QORNavigInstance*> rows;
        for (const QModelIndex& index : selectedIndexes()) {
            rows.push_back(model_.rowAt(index));
        }
        box_->ReportSelection(rows);
    }
    Q_EMIT picked();
}

void TreeView::fetch(const QModelIndex& above) {
    if (box_ && above.isValid()) {
        model_.rowAt(above)->Fetch(kPortion);
    }
}

/// The end is that of the tree, whose rows may not have come yet.
QModelIndex TreeView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const auto lastBelow = [this](const QModelIndex& above) {
        return model_.index(model_.rowCount(above) - 1, 0, above);
    };
    if (action == MoveEnd && box_) {
        for (QModelIndex row = lastBelow({}); row.isValid() && isExpanded(row); row = lastBelow(row)) {
            QORNavigInstance& above = *model_.rowAt(row);
            above.Fetch(above.GetPendingCount());
        }
    }
    return QTreeView::moveCursor(action, modifiers);
}

bool TreeView::reveal(const std::vector<int>& path) {
    QORVar<QORNavigInstance> row(box_ && !path.empty() ? box_->GetRoot(path.front()) : nullptr);
    for (std::size_t level = 1; row && level < path.size(); ++level) {
        box_->ReportExpand(*row.Get());
        row->Fetch(path[level] - row->GetChildCount());
        row = QORVar<QORNavigInstance>(row->FindChild(path[level]));
    }
    if (row) {
        box_->ReportSelection({row.Get()});
        scrollTo(model_.indexOf(row.Get()), PositionAtCenter);
        Q_EMIT picked();
    }
    return bool(row);
}

bool TreeView::openAll(int most) {
    std::deque<QORVar<QORNavigInstance>> open;
    for (int position = 1; box_ && position <= box_->GetRootCount(); ++position) {
        open.emplace_back(box_->GetRoot(position));
    }
    int count = static_cast<int>(open.size());
    setUpdatesEnabled(false);
    while (!open.empty() && count < most) {
        const auto row = open.front();
        open.pop_front();
        if (row->MayExpand()) {
            setExpanded(model_.indexOf(row.Get()), true);
            row->Fetch(most - count);
        }
        for (int position = 1; position <= row->GetChildCount(); ++position) {
            open.emplace_back(row->GetChild(position));
        }
        count += row->GetChildCount();
    }
    setUpdatesEnabled(true);
    return open.empty();
}

} // namespace planner::desktop
