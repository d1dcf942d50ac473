#include "planner/desktop/bom/BomArea.h"

#include "planner/desktop/toolkit/FramePane.h"

#include <QApplication>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>

namespace planner::desktop {

BomArea::BomArea(QWidget* emptyPage, QWidget* parent) : QStackedWidget(parent), splitter_(new QSplitter(this)) {
    addWidget(emptyPage);
    addWidget(splitter_);
    splitter_->setChildrenCollapsible(false);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { follow(now); });
}

QTabWidget* BomArea::makeGroup() {
    auto* const group = new QTabWidget(splitter_);
    group->setDocumentMode(true);
    group->setTabsClosable(true);
    group->setMovable(true);
    group->tabBar()->setExpanding(false);
    group->setElideMode(Qt::ElideMiddle);
    connect(group, &QTabWidget::tabCloseRequested, this,
            [group](int index) { static_cast<FramePane*>(group->widget(index))->close(); });
    connect(group, &QTabWidget::currentChanged, this, [this, group] { setCurrent(group); });
    return group;
}

std::vector<QTabWidget*> BomArea::groups() const {
    std::vector<QTabWidget*> groups;
    groups.reserve(static_cast<std::size_t>(splitter_->count()));
    for (int index = 0; index < splitter_->count(); ++index) {
        groups.push_back(static_cast<QTabWidget*>(splitter_->widget(index)));
    }
    return groups;
}

QTabWidget* BomArea::groupOf(const QWidget* pane) const {
    for (QTabWidget* const group : groups()) {
        if (group->isAncestorOf(pane)) {
            return group;
        }
    }
    return nullptr;
}

void BomArea::setCurrent(QTabWidget* group) {
    current_ = group;
    if (FramePane* const pane = current()) {
        pane->activate();
    }
    Q_EMIT currentChanged();
}

/// The group that gets the keyboard is the one that a person works in.
void BomArea::follow(QWidget* focused) {
    QTabWidget* const group = focused ? groupOf(focused) : nullptr;
    if (group && group != current_) {
        setCurrent(group);
    }
}

void BomArea::add(FramePane& pane) {
    if (!current_) {
        current_ = makeGroup();
    }
    setCurrentWidget(splitter_);
    move(pane, *current_);
    connect(&pane, &FramePane::titleChanged, this, [this, &pane] {
        if (QTabWidget* const group = groupOf(&pane)) {
            group->setTabText(group->indexOf(&pane), pane.title());
        }
    });
    connect(&pane, &QWidget::windowIconChanged, this, [this, &pane](const QIcon& icon) {
        if (QTabWidget* const group = groupOf(&pane)) {
            group->setTabIcon(group->indexOf(&pane), icon);
        }
    });
    connect(&pane, &FramePane::shown, this,
            [this, &pane] { groupOf(&pane)->setTabVisible(groupOf(&pane)->indexOf(&pane), true); });
    connect(&pane, &FramePane::hidden, this,
            [this, &pane] { groupOf(&pane)->setTabVisible(groupOf(&pane)->indexOf(&pane), false); });
    connect(&pane, &FramePane::raised, this, [this, &pane] { groupOf(&pane)->setCurrentWidget(&pane); });
    connect(&pane, &FramePane::ended, this, [this, &pane] { remove(pane); });
}

void BomArea::move(FramePane& pane, QTabWidget& group) {
    const QIcon icon = pane.windowIcon();
    group.setCurrentIndex(group.addTab(&pane, icon, pane.title()));
    setCurrent(&group);
}

void BomArea::remove(FramePane& pane) {
    QTabWidget* const group = groupOf(&pane);
    if (!group) {
        return;
    }
    group->removeTab(group->indexOf(&pane));
    if (group->count() == 0) {
        group->setParent(nullptr);
        group->deleteLater();
        setCurrent(splitter_->count() > 0 ? groups().front() : nullptr);
    }
    setCurrentIndex(splitter_->count() > 0 ? 1 : 0);
}

FramePane* BomArea::current() const {
    return current_ ? static_cast<FramePane*>(current_->currentWidget()) : nullptr;
}

std::vector<FramePane*> BomArea::panes() const {
    std::vector<FramePane*> panes;
    for (const QTabWidget* const group : groups()) {
        for (int index = 0; index < group->count(); ++index) {
            panes.push_back(static_cast<FramePane*>(group->widget(index)));
        }
    }
    return panes;
}

bool BomArea::canSplit() const {
    return current_ && current_->count() > 1;
}

bool BomArea::isSplit() const {
    return splitter_->count() > 1;
}

void BomArea::split() {
    if (canSplit()) {
        FramePane& pane = *current();
        move(pane, *makeGroup());
        QList<int> sizes;
        sizes.fill(1, splitter_->count());
        splitter_->setSizes(sizes);
    }
}

void BomArea::join() {
    FramePane* const kept = current();
    const auto all = groups();
    for (std::size_t next = 1; next < all.size(); ++next) {
        while (all[next]->count() > 0) {
            move(*static_cast<FramePane*>(all[next]->widget(0)), *all.front());
        }
        all[next]->setParent(nullptr);
        all[next]->deleteLater();
    }
    if (kept) {
        setCurrent(all.front());
        all.front()->setCurrentWidget(kept);
    }
}

} // namespace planner::desktop
