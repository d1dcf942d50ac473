// Menus and tool bar of the main window.

#include "planner/desktop/app/FileCommands.h"
#include "planner/desktop/app/MainWindow.h"
#include "planner/desktop/bom/BomArea.h"
#include "planner/desktop/bom/BomDesk.h"
#include "planner/desktop/bom/BomSide.h"
#include "planner/desktop/bom/StartPage.h"
#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/ItemPane.h"
#include "planner/desktop/plan/PlanCommands.h"
#include "planner/desktop/plan/PlanPane.h"
#include "planner/desktop/plan/PlanSession.h"
#include "planner/desktop/settings/Preferences.h"
#include "planner/desktop/toolkit/FramePane.h"

#include <QActionGroup>
#include <QDockWidget>
#include <QLineEdit>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace planner::desktop {

QAction* MainWindow::add(QMenu& menu, const QString& text, const QString& iconName, const QKeySequence& keys,
                         const std::function<void()>& run) {
    QAction* const action = menu.addAction(icon(iconName), text);
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, run);
    return action;
}

void MainWindow::makeMenus() {
    makeFileMenu();
    makeEditMenu();
    makePlanMenu();
    makeBillMenu();
    makeViewMenu();
    makeToolBar();
    plan_->setMenu(planMenu_);
    items_->setMenu(planMenu_);
    start_->offer(*commands_->addStep, "Begin with the steps of the work; each new one follows the last.");
    start_->offer(*commands_->addItem[0], "What the chosen step brings in. Drag items from the list onto other steps.");
    start_->offer(*bill_, "The bill of materials at the end of the plan. It follows every edit.");
    start_->offer(*files_->open, "Go on with a plan that is there.");
}

void MainWindow::makeFileMenu() {
    QMenu& menu = *menuBar()->addMenu("&File");
    menu.addActions({files_->startNew, files_->open});
    menu.addMenu(files_->recent);
    menu.addSeparator();
    menu.addActions({files_->save, files_->saveAs});
    menu.addSeparator();
    onBill_.push_back(
        add(menu, "&Export Bill…", "export", QKeySequence("Ctrl+E"), [this] { onSide(&BomSide::exportBill); }));
    menu.addSeparator();
    add(menu, "&Quit", {}, QKeySequence::Quit, [this] { close(); });
}

void MainWindow::makeEditMenu() {
    QMenu& menu = *menuBar()->addMenu("&Edit");
    undo_ = add(menu, "&Undo", "undo", QKeySequence::Undo, [this] { session_->undo(); });
    redo_ = add(menu, "&Redo", "redo", QKeySequence::Redo, [this] { session_->redo(); });
    undo_->setIconText("Undo");
    redo_->setIconText("Redo");
    menu.addSeparator();
    add(menu, "Re&name\tF2", "rename", {}, [this] { rename(); });
    add(menu, "Re&move\tDel", "remove", {}, [this] { remove(); });
    menu.addSeparator();
    add(menu, "&Fasteners in Bills…", "settings", {}, [this] { chooseFasteners(); });
}

void MainWindow::makePlanMenu() {
    planMenu_ = menuBar()->addMenu("&Plan");
    planMenu_->addActions({commands_->addStep, commands_->addInside});
    planMenu_->addSeparator();
    for (QAction* const action : commands_->addItem) {
        planMenu_->addAction(action);
    }
    planMenu_->addSeparator();
    planMenu_->addActions({commands_->addResource, commands_->addBehaviour});
    planMenu_->addSeparator();
    planMenu_->addAction(commands_->link);
    QMenu& kinds = *planMenu_->addMenu("&Kind of Step");
    for (QAction* const action : commands_->setKind) {
        kinds.addAction(action);
    }
    planMenu_->addSeparator();
    add(*planMenu_, "Rename\tF2", "rename", {}, [this] { rename(); });
    add(*planMenu_, "Remove\tDel", "remove", {}, [this] { remove(); });
}

void MainWindow::makeBillMenu() {
    QMenu& menu = *menuBar()->addMenu("&Bill");
    billModes_ = new QMenu("Open", this);
    add(*billModes_, "&Bill", "bill", QKeySequence("Ctrl+1"), [this] { openBill(1); });
    add(*billModes_, "&Items in Space", "space", QKeySequence("Ctrl+2"), [this] { openBill(2); });
    add(*billModes_, "Bill &and Items", "bill-space", QKeySequence("Ctrl+3"), [this] { openBill(3); });
    bill_ = new QAction(icon("bill-space"), "Open &Bill", this);
    bill_->setToolTip("Open the bill of the chosen step or resource, else of the whole plan");
    connect(bill_, &QAction::triggered, this, [this] { openBill(readBillMode()); });
    planMenu_->addSeparator();
    planMenu_->addActions(billModes_->actions());
    menu.addActions(billModes_->actions());
    menu.addSeparator();
    onBill_ = {
        add(menu, "&Filter", "filter", QKeySequence("Ctrl+Shift+F"),
            [this] { desk_->currentSide()->filter().setFocus(); }),
        add(menu, "&Expand All", "expand", QKeySequence("Ctrl+Shift+E"), [this] { onSide(&BomSide::expandAll); }),
        add(menu, "&Collapse All", {}, QKeySequence("Ctrl+Shift+W"), [this] { onSide(&BomSide::collapseAll); }),
        add(menu, "Cop&y as Text", "copy", QKeySequence("Ctrl+Shift+C"), [this] { desk_->currentSide()->copy(); }),
        onBill_.front()};
    menu.addSeparator();
    split_ = add(menu, "&Side by Side", "split", QKeySequence("Ctrl+\\"), [this] {
        area_->split();
        enable();
    });
    join_ = add(menu, "All in &Tabs", {}, {}, [this] {
        area_->join();
        enable();
    });
    onBill_.push_back(add(menu, "C&lose", {}, QKeySequence::Close, [this] { area_->current()->close(); }));
}

void MainWindow::makeViewMenu() {
    QMenu& menu = *menuBar()->addMenu("&View");
    add(menu, "Show in &Plan", "reveal", QKeySequence("F4"), [this] { revealInPlan(); });
    onBill_.push_back(add(menu, "Show in &Bill", "reveal", QKeySequence("F5"), [this] { revealInBill(); }));
    planMenu_->addSeparator();
    planMenu_->addActions(menu.actions());
    menu.addSeparator();
    for (const QDockWidget* const dock : findChildren<QDockWidget*>()) {
        menu.addAction(dock->toggleViewAction());
    }
    menu.addSeparator();
    makeAppearanceMenu(*menu.addMenu("&Appearance"));
}

void MainWindow::makeAppearanceMenu(QMenu& menu) {
    auto* const group = new QActionGroup(this);
    constexpr std::array<const char*, 3> kTexts{"As the &Desktop", "&Light", "&Dark"};
    for (std::size_t i = 0; i < kTexts.size(); ++i) {
        const auto appearance = static_cast<Appearance>(i);
        QAction* const action = group->addAction(menu.addAction(kTexts[i]));
        action->setCheckable(true);
        action->setChecked(appearance == readAppearance());
        connect(action, &QAction::triggered, this, [appearance] {
            keepAppearance(appearance);
            applyAppearance(appearance);
        });
    }
}

void MainWindow::makeToolBar() {
    constexpr int kIcon = 20;
    QToolBar& bar = *addToolBar("Tools");
    bar.setObjectName("tools");
    bar.setMovable(false);
    bar.setIconSize({kIcon, kIcon});
    bar.addActions({files_->startNew, files_->open, files_->save});
    bar.addSeparator();
    bar.addActions({undo_, redo_});
    bar.addSeparator();
    bar.addAction(commands_->addStep);
    auto* const items = new QToolButton(&bar);
    items->setDefaultAction(commands_->addItem[0]);
    items->setPopupMode(QToolButton::MenuButtonPopup);
    for (QAction* const action : commands_->addItem) {
        items->addAction(action);
    }
    bar.addWidget(items);
    bar.addActions({commands_->addResource, commands_->link});
    bar.addSeparator();
    auto* const bill = new QToolButton(&bar);
    bill->setDefaultAction(bill_);
    bill->setPopupMode(QToolButton::MenuButtonPopup);
    bill->setMenu(billModes_);
    bar.addWidget(bill);
    for (QAction* const action : {commands_->addStep, commands_->addResource, commands_->link}) {
        static_cast<QToolButton*>(bar.widgetForAction(action))->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
    items->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bill->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

} // namespace planner::desktop
