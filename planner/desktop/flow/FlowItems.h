#pragma once

#include "planner/desktop/flow/FlowLayout.h"
#include "planner/flow/FlowGraph.h"

#include <QGraphicsItem>

namespace planner::desktop {

/// A step as a box with its icon and name. It is selected when the step is chosen.
class BoxItem : public QGraphicsItem {
public:
    /// `unit` is the height of a line of text. A remark on the step is told with it, and marks its icon.
    BoxItem(FlowBox box, int place, double unit, const QString& remark);

    const FlowBox& box() const { return box_; }
    ModelObject& object() const { return *box_.object.Get(); }
    int place() const { return place_; } ///< in the graph

    /// Marks the box as the one that a link which is being drawn would lead to.
    void setTarget(bool isTarget);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    QRectF frame() const;
    void paintText(QPainter& painter, const QColor& colour) const;

    FlowBox box_;
    int place_;
    double unit_;
    bool isMarked_;
    bool isTarget_ = false;
};

/// A link as a line with a head. It can be selected.
class ArrowItem : public QGraphicsItem {
public:
    ArrowItem(FlowArrow arrow, const QPainterPath& course, double unit);

    const FlowArrow& arrow() const { return arrow_; }

    QRectF boundingRect() const override;
    QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    FlowArrow arrow_;
    QPainterPath course_;
    QPainterPath head_;
    double unit_;
};

/// The end of the flow: a ring around a dot, and the lines that lead there.
class EndItem : public QGraphicsItem {
public:
    explicit EndItem(double unit);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

private:
    double unit_;
};

} // namespace planner::desktop
