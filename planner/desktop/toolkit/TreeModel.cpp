#include "planner/desktop/toolkit/TreeModel.h"

#include "planner/desktop/icons/Icons.h"

#include "QORPlatform/navigation/QORNavigBox.h"

#include <QFont>
#include <QScopedValueRollback>

namespace planner::desktop {

namespace {

QString textOf(const QORUnicodeString& text) {
    return QString::fromUtf8(static_cast<const char*>(text));
}

} // namespace

QORNavigInstance* TreeModel::rowAt(const QModelIndex& index) const {
    return static_cast<QORNavigInstance*>(index.internalPointer());
}

QModelIndex TreeModel::indexOf(const QORNavigInstance* row) const {
    return row && row->GetPosition() > 0 ? createIndex(row->GetPosition() - 1, 0, row) : QModelIndex();
}

void TreeModel::aboutToCome(const QORNavigInstance* above, int first, int last) {
    beginInsertRows(indexOf(above), first - 1, last - 1);
}

void TreeModel::aboutToGo(const QORNavigInstance* above, int first, int last) {
    const QScopedValueRollback<bool> removing(isRemoving_, true);
    beginRemoveRows(indexOf(above), first - 1, last - 1);
}

void TreeModel::nodeChanged(const QORNavigInstance& row) {
    const QModelIndex index = indexOf(&row);
    Q_EMIT dataChanged(index, index);
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
    const QORNavigInstance* const above = rowAt(parent);
    const QORNavigInstance* const found = above ? above->GetChild(row + 1) : box_.GetRoot(row + 1);
    return found && column == 0 ? createIndex(row, column, found) : QModelIndex();
}

QModelIndex TreeModel::parent(const QModelIndex& child) const {
    const QORNavigInstance* const row = rowAt(child);
    return row ? indexOf(row->GetParent()) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex& parent) const {
    const QORNavigInstance* const row = rowAt(parent);
    return row ? row->GetChildCount() : box_.GetRootCount();
}

int TreeModel::columnCount(const QModelIndex&) const {
    return 1;
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
    QORNavigInstance* const row = rowAt(index);
    if (!row) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return textOf(row->GetNode()->GetLabel());
    case Qt::DecorationRole:
        if (const ModelObject* const object = ModelObject::behind(box_.GetObject(*row))) {
            return iconOf(*object);
        }
        return icon(textOf(row->GetNode()->GetIconName()));
    case Qt::ToolTipRole:
        return textOf(row->GetShortHelp());
    case Qt::FontRole: {
        QFont font;
        font.setBold(row->IsMarked());
        return font;
    }
    default:
        return {};
    }
}

bool TreeModel::hasChildren(const QModelIndex& parent) const {
    const QORNavigInstance* const row = rowAt(parent);
    if (!row) {
        return box_.GetRootCount() > 0;
    }
    QORNavigRows* const rows = row->GetChildCount() == 0 ? box_.GetRows() : nullptr;
    return rows ? rows->GetChild(box_.GetRow(*row), 1) != QORNavigRows::kNone : row->MayExpand();
}

} // namespace planner::desktop
