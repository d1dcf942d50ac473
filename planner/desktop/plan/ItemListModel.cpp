#include "planner/desktop/plan/ItemListModel.h"

#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/PlanDrop.h"
#include "planner/desktop/plan/PlanSession.h"
#include "planner/desktop/plan/RowChanges.h"
#include "planner/desktop/questions/Findings.h"

#include <algorithm>
#include <memory>

namespace planner::desktop {

ItemListModel::ItemListModel(PlanSession& session, const Findings& findings, QObject* parent)
    : QAbstractListModel(parent), session_(session), findings_(findings), rows_(wanted()) {
    connect(&session_, &PlanSession::changed, this, &ItemListModel::refresh);
    connect(&findings_, &Findings::changed, this, &ItemListModel::refresh);
    connect(&session_, &PlanSession::aboutToReplace, this, &ItemListModel::clear);
    connect(&session_, &PlanSession::replaced, this, &ItemListModel::refresh);
}

std::vector<PlanRow> ItemListModel::wanted() const {
    const auto& items = session_.plan().items.entries();
    std::vector<PlanRow> rows(items.size());
    std::transform(items.begin(), items.end(), rows.begin(), [](Item* item) { return PlanRow{item}; });
    return rows;
}

void ItemListModel::clear() {
    beginResetModel();
    rows_.clear();
    endResetModel();
}

void ItemListModel::refresh() {
    const std::vector<PlanRow> now = wanted();
    const auto place = [this](std::size_t position) {
        return rows_.begin() + static_cast<std::ptrdiff_t>(position);
    };
    for (const RowChange& change : rowChanges(rows_, now)) {
        const int first = static_cast<int>(change.first);
        const int last = static_cast<int>(change.first + change.count) - 1;
        if (change.kind == RowChange::Remove) {
            beginRemoveRows({}, first, last);
            rows_.erase(place(change.first), place(change.first + change.count));
            endRemoveRows();
        } else if (change.kind == RowChange::Insert) {
            beginInsertRows({}, first, last);
            const auto from = now.begin() + first;
            rows_.insert(place(change.first), from, from + static_cast<std::ptrdiff_t>(change.count));
            endInsertRows();
        } else {
            beginResetModel();
            rows_ = now;
            endResetModel();
        }
    }
    if (!rows_.empty()) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    }
}

ModelObject* ItemListModel::itemAt(const QModelIndex& index) const {
    return rows_[static_cast<std::size_t>(index.row())].object;
}

QModelIndex ItemListModel::indexOf(const ModelObject& item) const {
    const auto found = std::find_if(rows_.begin(), rows_.end(), [&](const auto& row) { return row.object == &item; });
    return found == rows_.end() ? QModelIndex() : index(static_cast<int>(found - rows_.begin()));
}

int ItemListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant ItemListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const ModelObject& item = *itemAt(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return QString::fromStdString(item.name());
    case Qt::DecorationRole:
        return findings_.marks(item) ? markedIconOf(item) : iconOf(item);
    case Qt::ToolTipRole:
        return QString("%1\n%2").arg(QString::fromStdString(item.id()), findings_.textOn(item)).trimmed();
    default:
        return {};
    }
}

bool ItemListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    ModelObject& item = *itemAt(index);
    const std::string name = value.toString().toStdString();
    return role == Qt::EditRole && name != item.name() &&
           session_.perform([&](PlanEditor& editor) { editor.rename(item, name); });
}

Qt::ItemFlags ItemListModel::flags(const QModelIndex& index) const {
    return QAbstractListModel::flags(index) |
           (index.isValid() ? Qt::ItemIsEditable | Qt::ItemIsDragEnabled : Qt::NoItemFlags);
}

QMimeData* ItemListModel::mimeData(const QModelIndexList& indexes) const {
    auto data = std::make_unique<PlanDrag>();
    for (const QModelIndex& index : indexes) {
        data->add({PlanRow{itemAt(index)}});
    }
    return data.release();
}

} // namespace planner::desktop
