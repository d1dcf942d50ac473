#pragma once

#include <QLabel>
#include <QStatusBar>

namespace planner::desktop {

class PlanSession;

/// What stands below: how much the plan holds, and when a bill was last computed.
class StatusLine : public QStatusBar {
    Q_OBJECT

public:
    StatusLine(PlanSession& session, QWidget* parent);

    /// A bill was computed just now.
    void computed(double milliseconds);

private:
    void count();

    PlanSession& session_;
    QLabel* counts_;
    QLabel* computed_;
};

} // namespace planner::desktop
