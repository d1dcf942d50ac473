#pragma once

#include <QStackedWidget>

namespace planner::desktop {

class Choice;
class Note;
class PlanSession;

/// The flow of the chosen activity or resource as a picture: what stands directly in it, joined by its links. A chosen
/// step shows the flow that it stands in. Where there is nothing to draw, a note says why.
class FlowPane : public QStackedWidget {
    Q_OBJECT

public:
    FlowPane(PlanSession& session, Choice& choice, QWidget* parent = nullptr);

private:
    void refresh();

    PlanSession& session_;
    Choice& choice_;
    Note* note_;
};

} // namespace planner::desktop
