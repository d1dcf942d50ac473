#include "planner/desktop/app/MainWindow.h"

#include "planner/desktop/bom/BomArea.h"
#include "planner/desktop/bom/BomDesk.h"
#include "planner/desktop/flow/FlowPane.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/plan/PlanSession.h"

#include <QDockWidget>

namespace planner::desktop {

MainWindow::MainWindow()
    : session_(new PlanSession(this)), choice_(new Choice(*session_)), area_(new BomArea(this)),
      desk_(new BomDesk(*session_, *choice_, *area_)) {
    setWindowTitle("Planner");
    setCentralWidget(area_);
    addPane(Qt::BottomDockWidgetArea, "Flow", "flow", new FlowPane(*session_, *choice_));
    resize(1280, 800);
}

MainWindow::~MainWindow() {
    delete desk_; // its windows show the plan
}

void MainWindow::addPane(Qt::DockWidgetArea area, const QString& title, const QString& name, QWidget* content) {
    auto* const dock = new QDockWidget(title, this);
    dock->setObjectName(name);
    dock->setWidget(content);
    addDockWidget(area, dock);
}

QStringList MainWindow::open(const Options& options) {
    if (options.plan) {
        const QStringList faults = session_->open(QString::fromStdString(*options.plan));
        if (!faults.isEmpty()) {
            return faults;
        }
    }
    ModelObject* const root = options.root ? session_->plan().find(*options.root) : session_->plan().process();
    if (!root || !BomDesk::isRoot(*root)) {
        return {"--root names \"" + QString::fromStdString(*options.root) +
                "\", which is no activity or resource of the plan"};
    }
    if (options.plan) {
        desk_->open(*root, options.mode);
    }
    return {};
}

} // namespace planner::desktop
