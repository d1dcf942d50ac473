#include "planner/desktop/bom/MatchModel.h"

#include "planner/desktop/icons/Icons.h"

#include <algorithm>

namespace planner::desktop {

namespace {

/// Calls visit(position) for an element and what it stands in, from the inside outwards.
template <class Visit>
void climb(const Bill& bill, std::size_t position, Visit visit) {
    int level = bill[position].level + 1;
    for (std::size_t at = position + 1; at-- > 0 && level > 1;) {
        if (bill[at].level < level) {
            level = bill[at].level;
            visit(at);
        }
    }
}

} // namespace

void MatchModel::find(const Bill& bill, const QString& text) {
    beginResetModel();
    bill_ = bill;
    matches_.clear();
    for (std::size_t position = 0; position < bill_.size(); ++position) {
        if (QString::fromStdString(bill_[position].name).contains(text, Qt::CaseInsensitive)) {
            matches_.push_back(position);
        }
    }
    endResetModel();
}

std::vector<int> MatchModel::pathOf(const QModelIndex& index) const {
    std::vector<int> path;
    climb(bill_, matches_[static_cast<std::size_t>(index.row())], [&](std::size_t at) {
        const int level = bill_[at].level;
        int position = 1;
        for (std::size_t before = at; before-- > 0 && bill_[before].level >= level;) {
            position += bill_[before].level == level ? 1 : 0;
        }
        path.push_back(position);
    });
    path.push_back(1);
    std::reverse(path.begin(), path.end());
    return path;
}

QString MatchModel::placeOf(std::size_t position) const {
    QStringList names;
    climb(bill_, position, [&](std::size_t at) {
        if (at != position) {
            names.prepend(QString::fromStdString(bill_[at].name));
        }
    });
    return names.join(" › ");
}

int MatchModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(matches_.size());
}

QVariant MatchModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const std::size_t position = matches_[static_cast<std::size_t>(index.row())];
    const QString name = QString::fromStdString(bill_[position].name);
    switch (role) {
    case Qt::DisplayRole: {
        const QString place = placeOf(position);
        return place.isEmpty() ? name : name + "   —  " + place;
    }
    case Qt::DecorationRole:
        return icon("product");
    case Qt::ToolTipRole:
        return placeOf(position);
    default:
        return {};
    }
}

} // namespace planner::desktop
