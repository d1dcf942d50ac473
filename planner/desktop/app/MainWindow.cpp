#include "planner/desktop/app/MainWindow.h"

#include "planner/desktop/app/FileCommands.h"
#include "planner/desktop/app/StatusLine.h"
#include "planner/desktop/bom/BomArea.h"
#include "planner/desktop/bom/BomDesk.h"
#include "planner/desktop/bom/BomSide.h"
#include "planner/desktop/bom/StartPage.h"
#include "planner/desktop/flow/FlowPane.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/plan/ItemPane.h"
#include "planner/desktop/plan/PlanClipboard.h"
#include "planner/desktop/plan/PlanCommands.h"
#include "planner/desktop/plan/PlanPane.h"
#include "planner/desktop/plan/PlanSession.h"
#include "planner/desktop/properties/PropertyPane.h"
#include "planner/desktop/questions/AnswerPane.h"
#include "planner/desktop/questions/Findings.h"
#include "planner/desktop/questions/Questions.h"
#include "planner/desktop/settings/FastenerDialog.h"
#include "planner/desktop/toolkit/Progress.h"
#include "planner/desktop/widgets/InfoBar.h"

#include <QAction>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QVBoxLayout>

#include <algorithm>

namespace planner::desktop {

MainWindow::MainWindow()
    : session_(new PlanSession(this)), choice_(new Choice(*session_)), bar_(new InfoBar(this)),
      start_(new StartPage(this)), area_(new BomArea(start_, this)), desk_(new BomDesk(*session_, *choice_, *area_)),
      progress_(new Progress(this)), commands_(new PlanCommands(*session_, *choice_, this)),
      files_(new FileCommands(*session_, *bar_, this)), clipboard_(new PlanClipboard(*session_)),
      findings_(new Findings(*session_)), questions_(new Questions(*session_, *choice_, *desk_, *findings_, this)) {
    applyFasteners(readFasteners());
    setAcceptDrops(true);
    setStatusBar(new StatusLine(*session_, this));
    fillCentre();
    makePanes();
    makeMenus();
    connect(progress_, &Progress::worked, static_cast<StatusLine*>(statusBar()), &StatusLine::computed);
    connect(commands_, &PlanCommands::added, this, [this](ModelObject* object, ModelObject* owner) {
        if (owner) {
            plan_->open(*owner);
        }
        editName(*object);
    });
    connect(desk_, &BomDesk::said, bar_, [this](const QString& text) { bar_->say(text); });
    connect(session_, &PlanSession::refused, bar_, [this](const QString& reason) { bar_->say(reason); });
    connect(session_, &PlanSession::fileStateChanged, this, &MainWindow::followFile);
    connect(session_, &PlanSession::fileStateChanged, this, &MainWindow::followEdits);
    connect(session_, &PlanSession::replaced, bar_, &QWidget::hide);
    connect(choice_, &Choice::changed, this, &MainWindow::enable);
    connect(questions_, &Questions::answered, this, &MainWindow::answer);
    connect(answers_, &AnswerPane::followed, this, &MainWindow::revealInPlan);
    connect(clipboard_, &PlanClipboard::changed, this, &MainWindow::enable);
    connect(area_, &BomArea::currentChanged, this, &MainWindow::enable);
    followFile();
    followEdits();
    enable();
    restoreLayout();
}

MainWindow::~MainWindow() {
    delete desk_; // its windows show the plan
    delete progress_;
}

void MainWindow::fillCentre() {
    auto* const centre = new QWidget(this);
    auto* const layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar_);
    layout->addWidget(area_, 1);
    setCentralWidget(centre);
}

void MainWindow::makePanes() {
    setDockNestingEnabled(true);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    plan_ = new PlanPane(*session_, *choice_, *findings_);
    items_ = new ItemPane(*session_, *choice_, *findings_);
    flow_ = new FlowPane(*session_, *choice_, *findings_,
                         [this](const ModelObject& root) { return desk_->generatorOn(root); });
    properties_ = new PropertyPane(*session_, *choice_);
    addPane(Qt::LeftDockWidgetArea, "&Plan", "plan", plan_);
    addPane(Qt::LeftDockWidgetArea, "&Items", "items", items_);
    addPane(Qt::RightDockWidgetArea, "P&roperties", "properties", properties_);
    addPane(Qt::BottomDockWidgetArea, "&Flow", "flow", flow_);
    answers_ = new AnswerPane(*session_, *choice_);
    addPane(Qt::BottomDockWidgetArea, "A&nswers", "answer-pane", answers_);
    tabifyDockWidget(findChild<QDockWidget*>("flow"), findChild<QDockWidget*>("answer-pane"));
    findChild<QDockWidget*>("answer-pane")->hide(); // until something is asked
}

/// The title has its access key in menus only.
void MainWindow::addPane(Qt::DockWidgetArea area, const QString& title, const QString& name, QWidget* content) {
    auto* const dock = new QDockWidget(QString(title).remove('&'), this);
    dock->toggleViewAction()->setText(title);
    dock->setObjectName(name);
    dock->setWidget(content);
    addDockWidget(area, dock);
}

void MainWindow::restoreLayout() {
    const QSettings settings;
    constexpr QSize kComfortable(1440, 900);
    constexpr double kOfTheScreen = 0.94;
    if (restoreGeometry(settings.value("geometry").toByteArray()) &&
        restoreState(settings.value("layout").toByteArray())) {
        return;
    }
    resize(kComfortable.boundedTo(screen()->availableSize() * kOfTheScreen));
    const auto dock = [this](const char* name) {
        return findChild<QDockWidget*>(name);
    };
    const int most = width() / 4; // on a small screen the bill needs the room
    resizeDocks({dock("plan"), dock("properties")}, {std::min(310, most), std::min(290, most)}, Qt::Horizontal);
    resizeDocks({dock("plan"), dock("items")}, {500, 300}, Qt::Vertical);
    resizeDocks({dock("flow")}, {230}, Qt::Vertical);
}

QStringList MainWindow::open(const Options& options) {
    if (options.plan) {
        QStringList faults = session_->open(QString::fromStdString(*options.plan));
        if (!faults.isEmpty()) {
            return faults;
        }
    }
    ModelObject* const root =
        options.root ? session_->plan().find(*options.root) : &BomDesk::usualRoot(session_->plan());
    if (!root || !BomDesk::isRoot(*root)) {
        return {"--root names \"" + QString::fromStdString(*options.root) +
                "\", which is no activity or resource of the plan"};
    }
    if (options.plan) {
        desk_->open(*root, options.mode);
    }
    return {};
}

void MainWindow::say(const QString& text) {
    bar_->say(text);
}

void MainWindow::openBill(ModelObject& root, int mode) {
    keepBillMode(mode);
    desk_->open(root, mode);
}

void MainWindow::revealInPlan() {
    if (ModelObject* const present = choice_->present()) {
        if (!plan_->reveal(*present)) {
            items_->reveal(*present);
        }
    }
}

void MainWindow::revealInBill() {
    BomSide* const side = desk_->currentSide();
    const ModelObject* const present = choice_->present();
    if (side && present && !side->reveal(*present)) {
        statusBar()->showMessage("\"" + QString::fromStdString(present->name()) + "\" isn't in this bill", 4000);
    }
}

void MainWindow::onSide(void (BomSide::*act)()) {
    if (BomSide* const side = desk_->currentSide()) {
        (side->*act)();
    }
}

void MainWindow::editName(ModelObject& object) {
    if (object.sort() == Sort::Item) {
        items_->editName(object);
    } else {
        plan_->editName(object);
    }
}

void MainWindow::rename() {
    if (plan_->hasFocus()) {
        plan_->editCurrent();
    } else if (ModelObject* const present = choice_->present()) {
        editName(*present);
    }
}

void MainWindow::remove() {
    if (items_->hasKeyboard()) {
        items_->removeSelected();
    } else if (flow_->hasKeyboard()) {
        flow_->removeChosen();
    } else {
        plan_->removeSelected();
    }
}

void MainWindow::cutOrCopy(void (PlanClipboard::*take)(const std::vector<PlanDrag::Entry>& rows)) {
    std::vector<PlanDrag::Entry> rows = plan_->hasFocus() ? plan_->selectedRows() : std::vector<PlanDrag::Entry>();
    if (rows.empty()) {
        for (const auto& object : choice_->objects()) {
            rows.push_back({PlanRow{object.Get()}});
        }
    }
    (clipboard_->*take)(rows);
}

void MainWindow::paste() {
    ModelObject* const present = choice_->present();
    if (clipboard_->canPaste(present) && !clipboard_->paste(*present)) {
        plan_->askRelation(present, clipboard_->objects(), plan_->menuPlace());
    }
}

void MainWindow::answer(const QString& text) {
    answers_->setHtml(text);
    auto* const dock = findChild<QDockWidget*>("answer-pane");
    dock->show();
    dock->raise();
}

void MainWindow::chooseFasteners() {
    FastenerDialog dialog(readFasteners(), this);
    if (dialog.exec() != QDialog::Accepted || dialog.choice() == readFasteners()) {
        return;
    }
    keepFasteners(dialog.choice());
    applyFasteners(dialog.choice());
    if (desk_->count() > 0) {
        bar_->say("Open bills still show the fasteners chosen before.", {{"Open Them Again",
                                                                          [this] {
                                                                              desk_->reopen();
                                                                          }},
                                                                         {"Later", [] {
                                                                          }}});
    }
}

void MainWindow::followFile() {
    const QString name = session_->path().isEmpty() ? session_->title() : QFileInfo(session_->path()).fileName();
    setWindowTitle(name + "[*] – Planner");
    setWindowFilePath(session_->path());
    setWindowModified(session_->isModified());
}

void MainWindow::followEdits() {
    const PlanEditor& editor = session_->editor();
    undo_->setEnabled(editor.canUndo());
    redo_->setEnabled(editor.canRedo());
    undo_->setText(editor.canUndo() ? "&Undo: " + QString::fromStdString(editor.undoText()).replace('&', "&&")
                                    : QString("&Undo"));
    redo_->setText(editor.canRedo() ? "&Redo: " + QString::fromStdString(editor.redoText()).replace('&', "&&")
                                    : QString("&Redo"));
}

void MainWindow::enable() {
    const bool hasBill = desk_->currentSide() != nullptr;
    for (QAction* const action : onBill_) {
        action->setEnabled(hasBill);
    }
    const ModelObject* const present = choice_->present();
    for (QAction* const action : {cut_, copy_, rename_, remove_, showInPlan_}) {
        action->setEnabled(present);
    }
    for (QAction* const action : ownBill_->actions()) {
        action->setEnabled(present && BomDesk::isRoot(*present));
    }
    showInBill_->setEnabled(present && hasBill);
    paste_->setEnabled(clipboard_->canPaste(choice_->present()));
    split_->setEnabled(area_->canSplit());
    join_->setEnabled(area_->isSplit());
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!files_->mayLeave()) {
        event->ignore();
        return;
    }
    QSettings settings;
    settings.setValue("geometry", saveGeometry());
    settings.setValue("layout", saveState());
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls() && event->mimeData()->urls().front().isLocalFile()) {
        event->acceptProposedAction();
    }
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString path = event->mimeData()->urls().front().toLocalFile();
    if (files_->mayLeave()) {
        files_->openFile(path);
    }
}

} // namespace planner::desktop
