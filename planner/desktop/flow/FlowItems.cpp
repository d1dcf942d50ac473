#include "planner/desktop/flow/FlowItems.h"

#include "planner/desktop/icons/Icons.h"
#include "planner/model/Activity.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPathStroker>
#include <QStyleOptionGraphicsItem>
#include <QTextLayout>
#include <QTextOption>

#include <cmath>

namespace planner::desktop {

namespace {

constexpr double kPale = 0.45;
constexpr double kThin = 1.2;
constexpr double kBold = 2.4;
constexpr double kRound = 5;

bool isDark(const QPalette& palette) {
    constexpr int kHalf = 128;
    return palette.color(QPalette::Base).lightness() < kHalf;
}

QColor loopColour(const QPalette& palette) {
    return isDark(palette) ? QColor(255, 110, 103) : QColor(200, 30, 30);
}

/// A colour between two.
QColor between(const QColor& from, const QColor& to, double part) {
    const auto mix = [&](int a, int b) {
        return static_cast<int>(a + (b - a) * part);
    };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

QString tip(const FlowBox& box, const QString& remark) {
    const ModelObject& object = *box.object.Get();
    QStringList lines{"<b>" + QString::fromStdString(object.name()).toHtmlEscaped() + "</b>"};
    if (object.hasOwnName()) {
        lines << QString::fromStdString(object.id()).toHtmlEscaped();
    }
    if (!box.onWay) {
        lines << "Lies on no way to the end of the flow, and adds nothing to its bill.";
    }
    if (!remark.isEmpty()) {
        lines << remark.toHtmlEscaped().replace('\n', "<br>");
    }
    if (box.linksElsewhere > 0) {
        lines << QString("Links to what isn't in this picture: %1").arg(box.linksElsewhere);
    }
    if (box.hasInside) {
        lines << "Double-click to see the steps inside.";
    }
    return lines.join("<br>");
}

QPainterPath headOf(const QPainterPath& course, double unit) {
    if (course.elementCount() < 2) {
        return {};
    }
    const QPointF end = course.currentPosition();
    QPointF before = course.elementAt(course.elementCount() - 2);
    if (QLineF(before, end).length() < 1) {
        before = course.pointAtPercent(0.9);
    }
    QLineF side(end, before);
    side.setLength(unit * 0.6);
    const double angle = side.angle();
    QPainterPath head(end);
    for (const double turn : {-24.0, 24.0}) {
        side.setAngle(angle + turn);
        head.lineTo(side.p2());
    }
    head.closeSubpath();
    return head;
}

} // namespace

BoxItem::BoxItem(FlowBox box, int place, double unit, const QString& remark)
    : box_(std::move(box)), place_(place), unit_(unit), isMarked_(!remark.isEmpty()) {
    setToolTip(tip(box_, remark));
    setFlag(ItemIsSelectable);
    setZValue(1);
}

void BoxItem::setTarget(bool isTarget) {
    isTarget_ = isTarget;
    update();
}

QRectF BoxItem::frame() const {
    const QSizeF size = kBoxSize * unit_;
    return {-size.width() / 2, -size.height() / 2, size.width(), size.height()};
}

QRectF BoxItem::boundingRect() const {
    return frame().adjusted(-kBold, -kBold, kBold, kBold);
}

void BoxItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) {
    const QPalette& palette = widget ? widget->palette() : option->palette;
    const QColor base = palette.color(QPalette::Base);
    const QColor ink = palette.color(QPalette::Text);
    const QColor accent = palette.color(QPalette::Highlight);
    const bool isMarked = isSelected() || isTarget_;
    const double fade = box_.onWay ? 1 : kPale;
    QPen pen(isMarked ? accent : between(base, ink, box_.onWay ? 0.65 : 0.3), box_.onWay || isMarked ? kBold : kThin);
    if (!box_.onWay) {
        pen.setStyle(Qt::DashLine);
    }
    painter->setPen(pen);
    painter->setBrush(isMarked ? between(base, accent, 0.22) : between(base, ink, box_.onWay ? 0.06 : 0));
    painter->drawRoundedRect(frame(), kRound, kRound);
    if (box_.hasInside) { // as a pile
        painter->setPen(QPen(between(base, ink, 0.65 * fade), kThin));
        const QRectF inner = frame().adjusted(0, 0, -unit_ * 0.3, 0);
        painter->drawLine(inner.topRight() + QPointF(0, kRound), inner.bottomRight() - QPointF(0, kRound));
    }
    painter->setOpacity(fade);
    paintText(*painter, ink);
}

/// The icon, and the name in one or two lines beside it, cut off with dots behind those.
void BoxItem::paintText(QPainter& painter, const QColor& colour) const {
    constexpr int kLines = 2;
    const double icon = unit_ * 1.25;
    const QRectF inner = frame().adjusted(unit_ * 0.5, unit_ * 0.3, -unit_ * 0.5, -unit_ * 0.3);
    const QRectF iconRect(inner.left(), -icon / 2, icon, icon);
    (isMarked_ ? markedIconOf(object()) : iconOf(object())).paint(&painter, iconRect.toRect());
    const double left = iconRect.right() + unit_ * 0.4;
    const double width = inner.right() - left;

    const QString name = QString::fromStdString(object().name());
    QTextLayout layout(name, QApplication::font());
    layout.setTextOption(QTextOption(Qt::AlignLeft));
    layout.setCacheEnabled(false);
    const QFontMetricsF metrics(layout.font());
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid() && lines.size() < kLines; line = layout.createLine()) {
        line.setLineWidth(width);
        const bool isLast = lines.size() == kLines - 1;
        const QString text = isLast ? name.mid(line.textStart()) : name.mid(line.textStart(), line.textLength());
        lines << metrics.elidedText(text.trimmed(), Qt::ElideRight, width);
    }
    layout.endLayout();
    painter.setPen(colour);
    painter.setFont(layout.font());
    painter.drawText(QRectF(left, inner.top(), width, inner.height()), Qt::AlignLeft | Qt::AlignVCenter,
                     lines.join('\n'));
}

ArrowItem::ArrowItem(FlowArrow arrow, const QPainterPath& course, double unit)
    : arrow_(std::move(arrow)), course_(course), head_(headOf(course, unit)), unit_(unit) {
    if (arrow_.start) {
        setFlag(ItemIsSelectable);
        setToolTip(QString::fromStdString(arrow_.start->name() + " → " + arrow_.end->name()) +
                   (arrow_.inLoop ? "\nLies on a loop" : ""));
    }
}

QRectF ArrowItem::boundingRect() const {
    return shape().boundingRect();
}

QPainterPath ArrowItem::shape() const {
    QPainterPathStroker stroker;
    stroker.setWidth(unit_ * 0.7); // easy to hit
    QPainterPath shape = stroker.createStroke(course_);
    shape.addPath(head_);
    return shape;
}

void ArrowItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) {
    const QPalette& palette = widget ? widget->palette() : option->palette;
    const QColor base = palette.color(QPalette::Base);
    QColor colour = between(base, palette.color(QPalette::Text), arrow_.onWay ? 0.8 : 0.35);
    if (arrow_.inLoop) {
        colour = loopColour(palette);
    }
    if (isSelected()) {
        painter->setPen(
            QPen(between(base, palette.color(QPalette::Highlight), 0.5), unit_ * 0.5, Qt::SolidLine, Qt::RoundCap));
        painter->drawPath(course_);
    }
    painter->setPen(QPen(colour, arrow_.onWay || arrow_.inLoop ? kBold : kThin, Qt::SolidLine, Qt::FlatCap));
    painter->drawPath(course_);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colour);
    painter->drawPath(head_);
}

EndItem::EndItem(double unit) : unit_(unit) {
    setToolTip("The end of the flow");
}

QRectF EndItem::boundingRect() const {
    return {-unit_ / 2 - kThin, -unit_ / 2 - kThin, unit_ + 2 * kThin, unit_ + 2 * kThin};
}

void EndItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) {
    const QPalette& palette = widget ? widget->palette() : option->palette;
    const QColor ink = between(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.8);
    painter->setPen(QPen(ink, kBold));
    painter->setBrush(Qt::NoBrush);
    painter->drawEllipse(QPointF(), unit_ / 2 - 1, unit_ / 2 - 1);
    painter->setPen(Qt::NoPen);
    painter->setBrush(ink);
    painter->drawEllipse(QPointF(), unit_ / 4, unit_ / 4);
}

} // namespace planner::desktop
