#pragma once

#include "planner/desktop/flow/FlowItems.h"

#include <QGraphicsScene>
#include <QGraphicsView>

#include <functional>
#include <vector>

namespace planner::desktop {

/// The picture of a flow, with mouse and keyboard: a click chooses a step (with Ctrl further ones) or selects a link,
/// dragging from box to box draws a link, Delete removes selected links, else the chosen steps, the wheel zooms,
/// dragging the ground moves the picture. Arrow keys go from step to step (with Shift choosing further ones), Tab
/// through all in the plan's order, Alt and an arrow through the links of a step; Enter opens a step, Backspace leads
/// back. Changes nothing itself.
class FlowView : public QGraphicsView {
    Q_OBJECT

public:
    explicit FlowView(QWidget* parent = nullptr);

    /// What is remarked on a step, empty for nothing.
    using Remark = std::function<QString(const ModelObject& step)>;
    void setRemarks(Remark remark) { remark_ = std::move(remark); }

    /// Shows a graph. The arrangement is made anew only when boxes or links are others; a new flow is fitted in.
    void show(FlowGraph graph, bool isNewFlow);

    /// Marks the boxes for which the function says so, and makes sure that the last of them is seen.
    void mark(const std::function<bool(const ModelObject&)>& isChosen);

    /// The box of an object, null when it has none, and the middle of the box in the viewport.
    const BoxItem* boxOf(const ModelObject& object) const;
    QPoint placeOf(const ModelObject& object) const;

    /// The item of a link, null when there is none.
    ArrowItem* arrowBetween(const ModelObject& from, const ModelObject& to) const;

    void fit();
    void zoom(double factor);

Q_SIGNALS:
    void chosen(const std::vector<planner::ModelObject*>& objects);
    void linkDrawn(planner::ModelObject* from, planner::ModelObject* to);
    void removalAsked(const std::vector<planner::FlowArrow>& arrows);
    void boxRemovalAsked();
    void opened(planner::ModelObject* object);
    void upAsked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void build();
    void addArrow(const FlowArrow& arrow, const QPainterPath& course);
    BoxItem* boxAt(QPoint place) const;
    BoxItem* currentBox() const;
    void choose(BoxItem& box, bool further);
    bool goTo(QPointF direction, bool further);
    void nextLink(int step);
    bool runKey(int key, Qt::KeyboardModifiers modifiers);
    std::vector<ArrowItem*> selectedArrows() const;
    void aim(QPoint place);
    void endDrawing();
    void fitReadably();

    QGraphicsScene scene_;
    FlowGraph graph_;
    Remark remark_;
    FlowShape shape_;
    FlowLayout layout_;
    std::vector<BoxItem*> boxes_;
    std::vector<ArrowItem*> arrows_;
    int current_ = -1; // the step that keys start from

    BoxItem* pressed_ = nullptr;
    BoxItem* target_ = nullptr;
    QGraphicsLineItem* rubber_ = nullptr;
    QPoint pressPlace_;
    bool fitsItself_ = true; // until a person zooms
};

} // namespace planner::desktop
