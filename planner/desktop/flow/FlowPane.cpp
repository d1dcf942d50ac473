#include "planner/desktop/flow/FlowPane.h"

#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/plan/PlanSession.h"
#include "planner/desktop/widgets/Note.h"

namespace planner::desktop {

FlowPane::FlowPane(PlanSession& session, Choice& choice, QWidget* parent)
    : QStackedWidget(parent), session_(session), choice_(choice), note_(new Note({}, this)) {
    addWidget(note_);
    connect(&session_, &PlanSession::replaced, this, &FlowPane::refresh);
    connect(&session_, &PlanSession::changed, this, &FlowPane::refresh);
    connect(&choice_, &Choice::changed, this, &FlowPane::refresh);
    refresh();
}

void FlowPane::refresh() {
    note_->setText(session_.plan().links().empty()
                       ? "No links yet: add steps, and link them in the order of their work."
                       : "This build draws no flow.");
}

} // namespace planner::desktop
