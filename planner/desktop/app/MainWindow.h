#pragma once

#include "planner/desktop/app/Options.h"

#include <QMainWindow>

namespace planner::desktop {

class BomArea;
class BomDesk;
class Choice;
class FlowPane;
class PlanSession;

/// The application's window: the plan at the left, bills in the middle, what is chosen at the right, the flow below.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow();
    ~MainWindow() override;

    PlanSession& session() const { return *session_; }
    Choice& choice() const { return *choice_; }
    BomArea& area() const { return *area_; }
    BomDesk& desk() const { return *desk_; }

    /// Opens what the command line names. Gives what is wrong with it, a line each.
    QStringList open(const Options& options);

private:
    void addPane(Qt::DockWidgetArea area, const QString& title, const QString& name, QWidget* content);

    PlanSession* session_;
    Choice* choice_;
    BomArea* area_;
    BomDesk* desk_;
};

} // namespace planner::desktop
