#include "planner/desktop/toolkit/FramePane.h"

#include <QResizeEvent>
#include <QSplitter>
#include <QVBoxLayout>

namespace planner::desktop {

namespace {

constexpr int kTreeShare = 2;
constexpr int kViewShare = 3;

} // namespace

FramePane::FramePane(QORFrmWindow& window) : window_(&window), splitter_(new QSplitter(this)) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitter_);
    splitter_->setChildrenCollapsible(false);
}

void FramePane::setTree(TreeView* tree) {
    tree_ = tree;
    splitter_->insertWidget(0, tree);
    splitter_->setStretchFactor(0, kTreeShare);
}

void FramePane::setTreeSide(QWidget* side) {
    splitter_->insertWidget(0, side);
    splitter_->setStretchFactor(0, kTreeShare);
    splitter_->setSizes({kTreeShare * width(), kViewShare * width()});
}

void FramePane::setView(QWidget* view) {
    view_ = view;
    splitter_->addWidget(view);
    splitter_->setStretchFactor(splitter_->count() - 1, kViewShare);
}

QString FramePane::title() const {
    const QORFrmWindow* const window = window_.Get();
    return window ? QString::fromUtf8(static_cast<const char*>(window->GetBaseName())).trimmed() : QString();
}

void FramePane::activate() {
    if (QORFrmWindow* const window = window_.Get()) {
        window->ReportActivate();
    }
}

void FramePane::takeKeyboard() {
    if (tree_ && tree_->isVisible()) {
        tree_->setFocus(Qt::ShortcutFocusReason);
    } else if (view_) {
        view_->setFocus(Qt::ShortcutFocusReason);
    }
}

void FramePane::close() {
    if (QORFrmWindow* const window = window_.Get()) {
        window->ReportClose();
    }
}

void FramePane::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (QORFrmWindow* const window = window_.Get()) {
        window->SetRectDimensions({x(), y(), width(), height()});
    }
}

} // namespace planner::desktop
