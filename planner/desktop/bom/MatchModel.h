#pragma once

#include "planner/bill/Bill.h"

#include <QAbstractListModel>

namespace planner::desktop {

/// The elements of a bill whose names hold a text, with what they stand in.
class MatchModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void find(const Bill& bill, const QString& text);

    /// The path of positions to a match, from the tree's root on.
    std::vector<int> pathOf(const QModelIndex& index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QString placeOf(std::size_t position) const;

    Bill bill_;
    std::vector<std::size_t> matches_;
};

} // namespace planner::desktop
