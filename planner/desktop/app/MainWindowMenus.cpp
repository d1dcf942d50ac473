// Menus and tool bar of the main window.

#include "planner/desktop/app/FileCommands.h"
#include "planner/desktop/app/MainWindow.h"
#include "planner/desktop/bom/BomArea.h"
#include "planner/desktop/bom/BomDesk.h"
#include "planner/desktop/bom/BomSide.h"
#include "planner/desktop/bom/StartPage.h"
#include "planner/desktop/flow/FlowPane.h"
#include "planner/desktop/icons/Icons.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/plan/ItemPane.h"
#include "planner/desktop/plan/PlanClipboard.h"
#include "planner/desktop/plan/PlanCommands.h"
#include "planner/desktop/plan/PlanPane.h"
#include "planner/desktop/plan/PlanSession.h"
#include "planner/desktop/properties/PropertyPane.h"
#include "planner/desktop/questions/AnswerPane.h"
#include "planner/desktop/questions/Questions.h"
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
    makeQuestionMenu();
    makeViewMenu();
    makeToolBar();
    makeContextMenu();
    start_->offer(
        *commands_->addStep,
        "Begin with the steps of the work (Ctrl+Enter): type a name, and add the next one; it follows the last.");
    start_->offer(*commands_->addItem[0],
                  "What the chosen step brings in (Ctrl+I). Drag items from the list onto other steps.");
    start_->offer(*bill_, "The bill of materials at the end of the plan (Ctrl+3). It follows every edit.");
    start_->offer(*files_->open, "Go on with a plan that is there (Ctrl+O).");
}

void MainWindow::makeFileMenu() {
    QMenu& menu = *menuBar()->addMenu("&File");
    menu.addActions({files_->startNew, files_->open});
    menu.addMenu(files_->recent);
    menu.addSeparator();
    menu.addActions({files_->save, files_->saveAs});
    menu.addSeparator();
    export_ = add(menu, "E&xport Bill…", "export", QKeySequence("Ctrl+E"), [this] { onSide(&BomSide::exportBill); });
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
    cut_ = add(menu, "Cu&t", "cut", QKeySequence::Cut, [this] { cutOrCopy(&PlanClipboard::cut); });
    copy_ = add(menu, "&Copy", "copy", QKeySequence::Copy, [this] { cutOrCopy(&PlanClipboard::copy); });
    paste_ = add(menu, "&Paste", "paste", QKeySequence::Paste, [this] { paste(); });
    menu.addSeparator();
    rename_ = add(menu, "Re&name", "rename", QKeySequence("F2"), [this] { rename(); });
    remove_ = add(menu, "Remo&ve\tDel", "remove", {}, [this] { remove(); }); // a key of plan, items and flow alone
    menu.addSeparator();
    add(menu, "&Fasteners in Bills…", "settings", {}, [this] { chooseFasteners(); });
}

void MainWindow::makePlanMenu() {
    QMenu& menu = *menuBar()->addMenu("&Plan");
    menu.addActions({commands_->addStep, commands_->addInside});
    menu.addSeparator();
    itemKinds_ = new QMenu("Add Ite&m", this);
    for (QAction* const action : commands_->addItem) {
        menu.addAction(action);
        itemKinds_->addAction(action);
    }
    menu.addSeparator();
    menu.addActions({commands_->addResource, commands_->addBehaviour});
    menu.addSeparator();
    menu.addAction(commands_->link);
    stepKinds_ = menu.addMenu("&Kind of Step");
    for (QAction* const action : commands_->setKind) {
        stepKinds_->addAction(action);
    }
    menu.addActions({commands_->moveUp, commands_->moveDown});
}

/// What can be done with the object under the mouse, wherever that is.
void MainWindow::makeContextMenu() {
    QMenu& menu = *(contextMenu_ = new QMenu(this));
    menu.setObjectName("context-menu");
    menu.addActions({commands_->addStep, commands_->addInside});
    menu.addMenu(itemKinds_);
    menu.addActions({commands_->addResource, commands_->addBehaviour});
    menu.addSeparator();
    menu.addAction(commands_->link);
    menu.addMenu(stepKinds_);
    menu.addSeparator();
    menu.addActions({cut_, copy_, paste_, rename_, remove_});
    menu.addSeparator();
    menu.addActions({questions_->why, questions_->billAtStep});
    menu.addSeparator();
    menu.addMenu(ownBill_);
    menu.addActions({showInPlan_, showInBill_});
    plan_->setMenu(&menu);
    items_->setMenu(&menu);
    flow_->setMenu(&menu);
    connect(desk_, &BomDesk::menuAsked, &menu, [&menu](QPoint place) { menu.popup(place); });
}

void MainWindow::makeBillMenu() {
    QMenu& menu = *menuBar()->addMenu("&Bill");
    billModes_ = new QMenu("Open Bill", this);
    ownBill_ = new QMenu("Bill &of This", this);
    constexpr std::array<const char*, 3> kTexts{"&Bill", "&Items in Space", "Bill &and Items"};
    constexpr std::array<const char*, 3> kIcons{"bill", "space", "bill-space"};
    for (int mode = 1; mode <= 3; ++mode) {
        const auto at = static_cast<std::size_t>(mode - 1);
        const QString number = QString::number(mode);
        add(*billModes_, kTexts[at], kIcons[at], QKeySequence("Ctrl+" + number),
            [this, mode] { openBill(BomDesk::usualRoot(session_->plan()), mode); });
        add(*ownBill_, kTexts[at], kIcons[at], QKeySequence("Ctrl+Shift+" + number),
            [this, mode] { openBill(*choice_->present(), mode); });
    }
    bill_ = new QAction(icon("bill-space"), "Open Bill", this);
    bill_->setToolTip("Open the bill of the whole plan");
    connect(bill_, &QAction::triggered, this,
            [this] { openBill(BomDesk::usualRoot(session_->plan()), readBillMode()); });
    menu.addActions(billModes_->actions());
    menu.addMenu(ownBill_);
    menu.addSeparator();
    onBill_ = {
        add(menu, "&Filter", "filter", QKeySequence("Ctrl+Shift+F"),
            [this] { desk_->currentSide()->filter().setFocus(); }),
        add(menu, "&Expand All", "expand", QKeySequence("Ctrl+Shift+E"), [this] { onSide(&BomSide::expandAll); }),
        add(menu, "&Collapse All", {}, QKeySequence("Ctrl+Shift+W"), [this] { onSide(&BomSide::collapseAll); }),
        add(menu, "Cop&y as Text", "copy", QKeySequence("Ctrl+Shift+C"), [this] { desk_->currentSide()->copy(); }),
        export_};
    menu.addAction(export_);
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

void MainWindow::makeQuestionMenu() {
    QMenu& menu = *menuBar()->addMenu("&Questions");
    menu.addActions({questions_->why, questions_->billAtStep, questions_->check, questions_->compare});
}

void MainWindow::makeViewMenu() {
    QMenu& menu = *menuBar()->addMenu("&View");
    showInPlan_ = add(menu, "Sho&w in Plan", "reveal", QKeySequence("F4"), [this] { revealInPlan(); });
    showInBill_ = add(menu, "S&how in Bill", "reveal", QKeySequence("F5"), [this] { revealInBill(); });
    menu.addSeparator();
    makeGoToMenu(*menu.addMenu("&Go To"));
    menu.addSeparator();
    for (const QDockWidget* const dock : findChildren<QDockWidget*>()) {
        menu.addAction(dock->toggleViewAction());
    }
    menu.addSeparator();
    makeAppearanceMenu(*menu.addMenu("&Appearance"));
}

void MainWindow::makeGoToMenu(QMenu& menu) {
    const auto goTo = [this](const char* dock, QWidget* field) {
        findChild<QDockWidget*>(dock)->show();
        findChild<QDockWidget*>(dock)->raise();
        field->setFocus(Qt::ShortcutFocusReason);
    };
    add(menu, "&Plan", {}, QKeySequence("Alt+1"), [=, this] { goTo("plan", plan_); });
    add(menu, "&Items", {}, QKeySequence("Alt+2"), [=, this] { goTo("items", items_); });
    onBill_.push_back(add(menu, "&Bill", {}, QKeySequence("Alt+3"), [this] { area_->current()->takeKeyboard(); }));
    add(menu, "&Flow", {}, QKeySequence("Alt+4"), [=, this] { goTo("flow", flow_); });
    add(menu, "&Answers", {}, QKeySequence("Alt+6"), [=, this] { goTo("answer-pane", answers_); });
    add(menu, "P&roperties", {}, QKeySequence("Alt+5"), [=, this] { goTo("properties", properties_); });
}

void MainWindow::makeAppearanceMenu(QMenu& menu) {
    auto* const group = new QActionGroup(this);
    constexpr std::array<const char*, 3> kTexts{"&As the Desktop", "&Light", "&Dark"};
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
    items->setMenu(itemKinds_);
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
