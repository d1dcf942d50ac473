#pragma once

#include <QTextBrowser>

namespace planner::desktop {

class Choice;
class PlanSession;

/// Answers to a person's questions. Objects of the plan in them are links: a click chooses the object and shows it.
class AnswerPane : public QTextBrowser {
    Q_OBJECT

public:
    AnswerPane(PlanSession& session, Choice& choice, QWidget* parent = nullptr);

Q_SIGNALS:
    /// An object was chosen by its link: somebody should show it.
    void followed();

private:
    void follow(const QUrl& link);

    PlanSession& session_;
    Choice& choice_;
};

} // namespace planner::desktop
