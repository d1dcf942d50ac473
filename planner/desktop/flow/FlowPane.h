#pragma once

#include "planner/flow/FlowGraph.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <optional>

class QLabel;
class QMenu;
class QStackedWidget;
class QToolButton;

namespace planner::desktop {

class Choice;
class Findings;
class FlowView;
class Note;
class PlanSession;

/// The flow of the chosen activity or resource as a picture: what stands directly in it, joined by its links. A chosen
/// step in which nothing stands shows the flow that it stands in; what is chosen in the picture itself leaves it there.
/// Where there is nothing to draw, a note says why.
///
/// The picture follows the plan when the event loop is reached, once for all edits until then, and not as long as
/// nobody sees it.
class FlowPane : public QWidget {
    Q_OBJECT

public:
    /// Gives the generator of an open bill on an object, null where there is none: it has walked the flow already.
    using WalkedBy = std::function<VXMBomGenerator*(const ModelObject& root)>;

    FlowPane(PlanSession& session, Choice& choice, const Findings& findings, WalkedBy walkedBy,
             QWidget* parent = nullptr);

    /// Shows the flow of another activity or resource.
    void open(FlowObject& owner);

    /// Whether the picture has the keyboard, and the steps chosen in it removed from the plan.
    bool hasKeyboard() const;
    void removeChosen();

    /// The menu of a right click on a step.
    void setMenu(QMenu* menu);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QToolButton* addButton(const QString& iconName, const QString& text, const QString& tip,
                           const std::function<void()>& run);
    QWidget* makeHead();
    void drop();
    void scheduleRefresh();
    void refresh();
    void showNote(const QString& text);
    void tellHead();
    void followChoice();
    void markChosen();
    bool isDrawn(const ModelObject& object) const;

    void choose(const std::vector<ModelObject*>& objects);
    void link(ModelObject& from, ModelObject& to);
    void removeLinks(const std::vector<FlowArrow>& arrows);
    void openBox(ModelObject& object);
    void up();

    PlanSession& session_;
    Choice& choice_;
    QLabel* path_;
    QLabel* hint_;
    QToolButton* up_;
    QStackedWidget* stack_;
    Note* note_;
    FlowView* view_;
    QTimer refreshing_;
    WalkedBy walkedBy_;
    std::optional<FlowWay> way_; // to the end of the flow that is shown, as the plan is now
    QORVar<ModelObject> owner_;  // of the flow that is shown
    bool isNewFlow_ = true;
    bool isChoosing_ = false;
};

} // namespace planner::desktop
