#include "planner/desktop/bom/BomArea.h"

#include "planner/desktop/toolkit/FramePane.h"
#include "planner/desktop/widgets/Note.h"

#include <QTabWidget>

namespace planner::desktop {

BomArea::BomArea(QWidget* parent) : QStackedWidget(parent), tabs_(new QTabWidget(this)) {
    addWidget(new Note("No bill is open.", this));
    addWidget(tabs_);
    tabs_->setDocumentMode(true);
    tabs_->setTabsClosable(true);
    tabs_->setMovable(true);
    connect(tabs_, &QTabWidget::tabCloseRequested, this,
            [this](int index) { static_cast<FramePane*>(tabs_->widget(index))->close(); });
    connect(tabs_, &QTabWidget::currentChanged, this, &BomArea::currentChanged);
}

void BomArea::add(FramePane& pane) {
    tabs_->setCurrentIndex(tabs_->addTab(&pane, pane.title()));
    setCurrentWidget(tabs_);
    connect(&pane, &FramePane::titleChanged, this,
            [this, &pane] { tabs_->setTabText(tabs_->indexOf(&pane), pane.title()); });
    connect(&pane, &FramePane::shown, this, [this, &pane] { tabs_->setTabVisible(tabs_->indexOf(&pane), true); });
    connect(&pane, &FramePane::hidden, this, [this, &pane] { tabs_->setTabVisible(tabs_->indexOf(&pane), false); });
    connect(&pane, &FramePane::raised, this, [this, &pane] { tabs_->setCurrentWidget(&pane); });
    connect(&pane, &FramePane::ended, this, [this, &pane] { remove(pane); });
}

void BomArea::remove(FramePane& pane) {
    tabs_->removeTab(tabs_->indexOf(&pane));
    if (tabs_->count() == 0) {
        setCurrentIndex(0);
    }
}

FramePane* BomArea::current() const {
    return static_cast<FramePane*>(tabs_->currentWidget());
}

} // namespace planner::desktop
