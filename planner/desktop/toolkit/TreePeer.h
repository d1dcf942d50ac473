#pragma once

#include "planner/desktop/toolkit/TreeModel.h"

#include "QORPlatform/toolkit/QORNavigBoxPeer.h"

#include <QPointer>
#include <QTreeView>

#include <memory>

namespace planner::desktop {

/// A tree box as a tree view.
class TreePeer final : public QORNavigBoxPeer {
public:
    TreePeer(QORNavigBox& box, QWidget* parent);
    ~TreePeer() override;

    QTreeView& view() const { return *view_; }

    void RootsChanged() override { model_->reset(); }
    void ChildrenChanged(QORNavigInstance& instance) override;
    void NodeChanged(QORNavigInstance& instance) override { model_->nodeChanged(instance); }
    void SelectionChanged() override {}
    void SettingsChanged() override {}

private:
    std::unique_ptr<TreeModel> model_;
    QPointer<QTreeView> view_;
};

} // namespace planner::desktop
