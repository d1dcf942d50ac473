#include "planner/desktop/icons/Picture.h"

#include <QPainter>
#include <QStringList>
#include <QXmlStreamReader>

namespace planner::desktop {

namespace {

double number(const QXmlStreamAttributes& attributes, const char* name) {
    return attributes.value(QLatin1String(name)).toDouble();
}

/// Takes a point off the front of a path's words.
QPointF takePoint(QStringList& words) {
    const double x = words.takeFirst().toDouble();
    return {x, words.takeFirst().toDouble()};
}

QPainterPath pathOf(const QString& data) {
    QPainterPath path;
    QStringList words = data.split(' ', Qt::SkipEmptyParts);
    while (!words.isEmpty()) {
        const QChar command = words.front().front();
        words.front().remove(0, 1);
        const qsizetype points = command == 'C' ? 3 : command == 'Z' ? 0 : 1;
        if (words.size() < points * 2) {
            break;
        }
        if (command == 'M') {
            path.moveTo(takePoint(words));
        } else if (command == 'L') {
            path.lineTo(takePoint(words));
        } else if (command == 'C') {
            const QPointF first = takePoint(words);
            const QPointF second = takePoint(words);
            path.cubicTo(first, second, takePoint(words));
        } else {
            path.closeSubpath();
            words.removeFirst();
        }
    }
    return path;
}

QColor colourOf(const QString& text, const QColor& current) {
    if (text == "currentColor") {
        return current;
    }
    return text.startsWith('#') ? QColor(text) : QColor();
}

} // namespace

Picture::Picture(const QByteArray& svg) {
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement) {
            addShape(reader.name(), reader.attributes());
        }
    }
}

void Picture::addShape(QStringView element, const QXmlStreamAttributes& attributes) {
    QPainterPath path;
    if (element == u"svg") {
        const QStringList box = attributes.value(QLatin1String("viewBox")).toString().split(' ');
        constexpr qsizetype kNumbers = 4;
        if (box.size() == kNumbers) {
            box_ = QRectF(box[0].toDouble(), box[1].toDouble(), box[2].toDouble(), box[3].toDouble());
        }
        return;
    }
    if (element == u"path") {
        path = pathOf(attributes.value(QLatin1String("d")).toString());
    } else if (element == u"rect") {
        const QRectF rect(number(attributes, "x"), number(attributes, "y"), number(attributes, "width"),
                          number(attributes, "height"));
        path.addRoundedRect(rect, number(attributes, "rx"), number(attributes, "rx"));
    } else if (element == u"circle") {
        const double radius = number(attributes, "r");
        path.addEllipse(QPointF(number(attributes, "cx"), number(attributes, "cy")), radius, radius);
    }
    shapes_.push_back({path, attributes.value(QLatin1String("fill")).toString(),
                       attributes.value(QLatin1String("stroke")).toString(), number(attributes, "stroke-width")});
}

void Picture::paint(QPainter& painter, const QRectF& rect, const QColor& current) const {
    if (box_.isEmpty()) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / box_.width(), rect.height() / box_.height());
    painter.translate(-box_.topLeft());
    for (const Shape& shape : shapes_) {
        const QColor fill = colourOf(shape.fill, current);
        const QColor stroke = colourOf(shape.stroke, current);
        painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
        painter.setPen(stroke.isValid() ? QPen(stroke, shape.strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)
                                        : QPen(Qt::NoPen));
        painter.drawPath(shape.path);
    }
}

} // namespace planner::desktop
