#pragma once

#include "planner/desktop/toolkit/TreeModel.h"
#include "planner/desktop/toolkit/TreeView.h"

#include "QORPlatform/toolkit/QORNavigBoxPeer.h"

#include <QPointer>

#include <memory>

namespace planner::desktop {

/// A tree box as a tree view.
class TreePeer final : public QORNavigBoxPeer {
public:
    /// The view becomes a child of the parent.
    TreePeer(QORNavigBox& box, QWidget* parent);
    ~TreePeer() override;

    TreeView& view() const { return *view_; }

    void RowsAboutToCome(QORNavigInstance* iParent, int iFirst, int iLast) override;
    void RowsCame(QORNavigInstance* iParent, int iFirst, int iLast) override;
    void RowsAboutToGo(QORNavigInstance* iParent, int iFirst, int iLast) override;
    void RowsGone(QORNavigInstance* iParent, int iFirst, int iLast) override;
    void OpenChanged(QORNavigInstance& iRow) override;
    void NodeChanged(QORNavigInstance& iRow) override;
    void SelectionChanged() override;
    void SettingsChanged() override;
    void RefillBegins() override;
    void RefillEnds() override;
    QORNavigInstance* GetTopRow() override;
    void ScrollTo(QORNavigInstance& iRow, Place iPlace) override;

private:
    std::unique_ptr<TreeModel> model_;
    QPointer<TreeView> view_;
};

} // namespace planner::desktop
