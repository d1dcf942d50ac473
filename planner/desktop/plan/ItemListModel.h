#pragma once

#include "planner/desktop/plan/PlanRows.h"

#include <QAbstractListModel>

namespace planner::desktop {

class Findings;
class PlanSession;

/// All items of the plan in their order.
class ItemListModel : public QAbstractListModel {
    Q_OBJECT

public:
    ItemListModel(PlanSession& session, const Findings& findings, QObject* parent = nullptr);

    ModelObject* itemAt(const QModelIndex& index) const;

    /// The row of an item, invalid for what is none of the plan's.
    QModelIndex indexOf(const ModelObject& item) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

private:
    void refresh();
    void clear();
    std::vector<PlanRow> wanted() const;

    PlanSession& session_;
    const Findings& findings_;
    std::vector<PlanRow> rows_;
};

} // namespace planner::desktop
