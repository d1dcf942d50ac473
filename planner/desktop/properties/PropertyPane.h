#pragma once

#include <QScrollArea>

#include <functional>
#include <vector>

class QFormLayout;

namespace planner {
class ModelObject;
}

namespace planner::desktop {

class Choice;
class PlanSession;

/// What is chosen, with its properties to edit. Rows are made for the object that is chosen last, and follow the plan
/// from then on, so that the keyboard stays where it is.
class PropertyPane : public QScrollArea {
    Q_OBJECT

public:
    PropertyPane(PlanSession& session, Choice& choice, QWidget* parent = nullptr);

private:
    void rebuild();
    void refresh();

    PlanSession& session_;
    Choice& choice_;
    ModelObject* shown_ = nullptr;
    std::vector<std::function<void()>> readers_;
};

} // namespace planner::desktop
