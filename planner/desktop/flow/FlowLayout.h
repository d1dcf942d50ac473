#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QSizeF>

#include <utility>
#include <vector>

namespace planner::desktop {

/// All that the arrangement of a flow depends on: how many boxes there are and which are joined. A link to the position
/// behind the last box leads to the mark of the end.
struct FlowShape {
    int boxes = 0;
    std::vector<std::pair<int, int>> links;

    friend bool operator==(const FlowShape&, const FlowShape&) = default;
};

/// Where things are, in units of a line of text; x grows to the right, y downwards. A box and the mark of the end have
/// their middle there, a link goes from border to border.
struct FlowLayout {
    std::vector<QPointF> centres; ///< of the boxes, and of the mark of the end at last
    std::vector<QPainterPath> links;
};

inline constexpr QSizeF kBoxSize{11, 3};
inline constexpr QSizeF kEndSize{1, 1};
inline constexpr QSizeF kGap{3, 1}; ///< between neighbours

inline QSizeF nodeSize(const FlowShape& shape, int node) {
    return node == shape.boxes ? kEndSize : kBoxSize;
}

/// Arranges a flow from left to right, what has no link in rows below. Graphviz does it as long as that takes no longer
/// than a moment, for larger flows a plainer rule.
FlowLayout layOutFlow(const FlowShape& shape);

/// The two ways. Graphviz gives false when it can't. Boxes without a link get no place that means anything.
bool layOutByGraphviz(const FlowShape& shape, FlowLayout& layout);
void layOutInLayers(const FlowShape& shape, FlowLayout& layout);

} // namespace planner::desktop
