#include "planner/desktop/toolkit/TreePeer.h"

#include "QORPlatform/navigation/QORNavigBox.h"

namespace planner::desktop {

TreePeer::TreePeer(QORNavigBox& box, QWidget* parent)
    : model_(std::make_unique<TreeModel>(box)), view_(new QTreeView(parent)) {
    view_->setModel(model_.get());
    view_->setUniformRowHeights(true);
    view_->setHeaderHidden(true);
}

TreePeer::~TreePeer() = default;

void TreePeer::ChildrenChanged(QORNavigInstance& instance) {
    model_->childrenChanged(instance);
}

} // namespace planner::desktop
