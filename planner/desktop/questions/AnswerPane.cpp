#include "planner/desktop/questions/AnswerPane.h"

#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/plan/PlanSession.h"

namespace planner::desktop {

AnswerPane::AnswerPane(PlanSession& session, Choice& choice, QWidget* parent)
    : QTextBrowser(parent), session_(session), choice_(choice) {
    setObjectName("answers");
    setAccessibleName("Answers");
    setFrameShape(NoFrame);
    setOpenLinks(false);
    setPlaceholderText("Choose an item and ask Why? (F1), or check the plan (F7).");
    connect(this, &QTextBrowser::anchorClicked, this, &AnswerPane::follow);
    connect(&session_, &PlanSession::aboutToReplace, this, &QTextEdit::clear);
}

void AnswerPane::follow(const QUrl& link) {
    if (ModelObject* const object = session_.plan().find(link.fragment(QUrl::FullyDecoded).toStdString())) {
        choice_.choose(object);
        Q_EMIT followed();
    }
}

} // namespace planner::desktop
