#include "planner/desktop/toolkit/TreeModel.h"

#include "QORPlatform/navigation/QORNavigBox.h"

namespace planner::desktop {

QORNavigInstance* TreeModel::instanceAt(const QModelIndex& index) const {
    return static_cast<QORNavigInstance*>(index.internalPointer());
}

QModelIndex TreeModel::indexOf(const QORNavigInstance& instance) const {
    return createIndex(instance.GetPosition() - 1, 0, &instance);
}

void TreeModel::reset() {
    beginResetModel();
    endResetModel();
}

void TreeModel::nodeChanged(QORNavigInstance& instance) {
    const QModelIndex index = indexOf(instance);
    Q_EMIT dataChanged(index, index);
}

void TreeModel::childrenChanged(QORNavigInstance&) {
    Q_EMIT layoutChanged();
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
    QORNavigInstance* const above = instanceAt(parent);
    QORNavigInstance* const instance = above ? above->GetChild(row + 1) : box_.GetRoot(row + 1);
    return instance && column == 0 ? createIndex(row, column, instance) : QModelIndex();
}

QModelIndex TreeModel::parent(const QModelIndex& child) const {
    const QORNavigInstance* const instance = instanceAt(child);
    return instance && instance->GetParent() ? indexOf(*instance->GetParent()) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex& parent) const {
    const QORNavigInstance* const instance = instanceAt(parent);
    return instance ? instance->GetChildCount() : box_.GetRootCount();
}

int TreeModel::columnCount(const QModelIndex&) const {
    return 1;
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
    const QORNavigInstance* const instance = instanceAt(index);
    if (!instance || role != Qt::DisplayRole) {
        return {};
    }
    return QString::fromUtf8(static_cast<const char*>(instance->GetNode()->GetLabel()));
}

bool TreeModel::hasChildren(const QModelIndex& parent) const {
    const QORNavigInstance* const instance = instanceAt(parent);
    return instance ? instance->MayExpand() : box_.GetRootCount() > 0;
}

bool TreeModel::canFetchMore(const QModelIndex& parent) const {
    const QORNavigInstance* const instance = instanceAt(parent);
    return instance && !instance->IsExpanded() && instance->MayExpand();
}

void TreeModel::fetchMore(const QModelIndex& parent) {
    box_.ReportExpand(*instanceAt(parent));
}

} // namespace planner::desktop
