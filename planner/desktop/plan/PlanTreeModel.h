#pragma once

#include "planner/desktop/plan/PlanRows.h"

#include <QAbstractItemModel>

#include <memory>
#include <unordered_map>

namespace planner::desktop {

class Findings;
class PlanSession;
struct DropPlace;

/// The plan as a tree. Rows are made in portions: the first when a person opens the row above, further ones as they are
/// asked for. After a change of the plan only those that were made are compared with it, and what is still there stays
/// the same row.
class PlanTreeModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { Name, What, ColumnCount };

    PlanTreeModel(PlanSession& session, const Findings& findings, QObject* parent = nullptr);
    ~PlanTreeModel() override;

    /// The row behind an index, without an object for an invalid one.
    PlanRow rowAt(const QModelIndex& index) const;

    /// Position in the list that names the item of a row.
    std::size_t listPosition(const QModelIndex& index) const;

    /// The rows of an object that were made so far.
    std::vector<QModelIndex> indexesOf(const ModelObject& object) const;

    /// The row of an activity, a resource or a behaviour, made with those above it where it wasn't yet. Invalid for
    /// what doesn't stand in the plan.
    QModelIndex reach(ModelObject& object);

    /// Makes the next portion of the rows below an opened one, or all of them; nothing happens where there are no more.
    void fetchNext(const QModelIndex& above);
    void fetchAll(const QModelIndex& above);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDropActions() const override;
    bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                         const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

Q_SIGNALS:
    /// Items were dropped on an object that may take them in several ways: somebody has to ask which.
    void relationWanted(planner::ModelObject* owner, const std::vector<planner::ModelObject*>& items);

private:
    struct Node;

    Node* nodeAt(const QModelIndex& index) const;
    QModelIndex indexOf(const Node& node, int column = 0) const;
    std::unique_ptr<Node> makeNode(const PlanRow& row, Node& above);
    void forget(const Node& node);
    void refresh();
    void compare(Node& above, std::size_t least = 0);
    void removeNodes(Node& above, std::size_t first, std::size_t count);
    void insertNodes(Node& above, std::size_t first, const std::vector<PlanRow>& rows);
    void moveNode(Node& above, std::size_t from, std::size_t target);
    void renumber(Node& above, std::size_t from);
    DropPlace placeAt(int row, const QModelIndex& parent) const;

    PlanSession& session_;
    const Findings& findings_;
    std::unique_ptr<Node> top_;
    std::unordered_multimap<const ModelObject*, Node*> made_;
};

} // namespace planner::desktop
