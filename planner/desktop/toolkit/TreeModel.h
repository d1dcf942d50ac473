#pragma once

#include <QAbstractItemModel>

class QORNavigBox;
class QORNavigInstance;

namespace planner::desktop {

/// The nodes of a tree box, made as far as a person opens them.
class TreeModel : public QAbstractItemModel {
    Q_OBJECT

public:
    explicit TreeModel(QORNavigBox& box) : box_(box) {}

    QORNavigInstance* instanceAt(const QModelIndex& index) const;
    QModelIndex indexOf(const QORNavigInstance& instance) const;

    void reset();
    void nodeChanged(QORNavigInstance& instance);
    void childrenChanged(QORNavigInstance& instance);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

private:
    QORNavigBox& box_;
};

} // namespace planner::desktop
