#include "planner/desktop/toolkit/TreePeer.h"

#include "QORPlatform/navigation/QORNavigBox.h"

namespace planner::desktop {

TreePeer::TreePeer(QORNavigBox& box, QWidget* parent)
    : model_(std::make_unique<TreeModel>(box)), view_(new TreeView(box, *model_, parent)) {}

TreePeer::~TreePeer() {
    if (view_) {
        view_->release();
    }
}

void TreePeer::RowsAboutToCome(QORNavigInstance* iParent, int iFirst, int iLast) {
    model_->aboutToCome(iParent, iFirst, iLast);
}

void TreePeer::RowsCame(QORNavigInstance*, int, int) {
    model_->came();
}

void TreePeer::RowsAboutToGo(QORNavigInstance* iParent, int iFirst, int iLast) {
    model_->aboutToGo(iParent, iFirst, iLast);
}

void TreePeer::RowsGone(QORNavigInstance*, int, int) {
    model_->gone();
}

void TreePeer::OpenChanged(QORNavigInstance& iRow) {
    if (view_) {
        view_->setExpanded(model_->indexOf(&iRow), iRow.IsExpanded());
    }
}

void TreePeer::NodeChanged(QORNavigInstance& iRow) {
    model_->nodeChanged(iRow);
}

void TreePeer::SelectionChanged() {
    if (view_) {
        view_->showSelection();
    }
}

void TreePeer::SettingsChanged() {
    if (view_) {
        view_->followSettings();
    }
}

void TreePeer::RefillBegins() {
    if (view_) {
        view_->setUpdatesEnabled(false);
    }
}

void TreePeer::RefillEnds() {
    if (view_) {
        view_->setUpdatesEnabled(true);
        view_->showSelection();
        Q_EMIT view_->refilled();
    }
}

QORNavigInstance* TreePeer::GetTopRow() {
    return view_ ? model_->rowAt(view_->indexAt({1, 1})) : nullptr;
}

void TreePeer::ScrollTo(QORNavigInstance& iRow, Place iPlace) {
    if (view_) {
        view_->scrollTo(model_->indexOf(&iRow),
                        iPlace == AtTop ? QAbstractItemView::PositionAtTop : QAbstractItemView::EnsureVisible);
    }
}

} // namespace planner::desktop
