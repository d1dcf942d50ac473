#pragma once

#include <QAbstractItemModel>

class QORNavigBox;
class QORNavigInstance;

namespace planner::desktop {

/// The rows of a tree box, as far as they were made. The box's peer tells it of rows that come and go.
class TreeModel : public QAbstractItemModel {
    Q_OBJECT

public:
    explicit TreeModel(QORNavigBox& box) : box_(box) {}

    /// The row behind an index, null for an invalid one; the index of a row, invalid for null.
    QORNavigInstance* rowAt(const QModelIndex& index) const;
    QModelIndex indexOf(const QORNavigInstance* row) const;

    // What the peer is told, positions from 1.
    void aboutToCome(const QORNavigInstance* above, int first, int last);
    void came() { endInsertRows(); }
    void aboutToGo(const QORNavigInstance* above, int first, int last);
    void gone() { endRemoveRows(); }
    void nodeChanged(const QORNavigInstance& row);

    /// Whether rows are about to go just now: what a view's selection loses by it is no person's choice.
    bool isRemoving() const { return isRemoving_; }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;

private:
    QORNavigBox& box_;
    bool isRemoving_ = false;
};

} // namespace planner::desktop
