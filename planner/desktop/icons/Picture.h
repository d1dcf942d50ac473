#pragma once

#include <QByteArray>
#include <QColor>
#include <QPainterPath>
#include <QRectF>

#include <vector>

class QPainter;
class QXmlStreamAttributes;

namespace planner::desktop {

/// A small drawing from the part of SVG that icons need: paths of absolute M, L, C and Z, rectangles, circles, each
/// with fill and stroke as colours, "none" or "currentColor". What else a file holds isn't drawn.
class Picture {
public:
    explicit Picture(const QByteArray& svg);

    /// Fills the rectangle with the drawing; `current` is the colour for "currentColor".
    void paint(QPainter& painter, const QRectF& rect, const QColor& current) const;

private:
    struct Shape {
        QPainterPath path;
        QString fill;
        QString stroke;
        double strokeWidth;
    };

    void addShape(QStringView element, const QXmlStreamAttributes& attributes);

    QRectF box_;
    std::vector<Shape> shapes_;
};

} // namespace planner::desktop
