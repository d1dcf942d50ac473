#include "planner/desktop/flow/FlowLayout.h"

#include <algorithm>
#include <cmath>

namespace planner::desktop {

namespace {

// Graphviz takes some tenths of a second for a tangle of this size, and minutes for one of thousands.
constexpr int kGraphvizBoxes = 300;
constexpr std::size_t kGraphvizLinks = 600;

constexpr double kRowsAreWider = 6; // rows of boxes without a link are so much wider than high

std::vector<int> looseBoxes(const FlowShape& shape) {
    std::vector<bool> isLinked(shape.boxes + 1, false);
    for (const auto& [from, to] : shape.links) {
        isLinked[from] = isLinked[to] = true;
    }
    std::vector<int> loose;
    for (int box = 0; box < shape.boxes; ++box) {
        if (!isLinked[box]) {
            loose.push_back(box);
        }
    }
    return loose;
}

void placeLoose(const std::vector<int>& loose, const QRectF& linked, FlowLayout& layout) {
    const double stepX = kBoxSize.width() + kGap.height();
    const double stepY = kBoxSize.height() + kGap.height();
    const auto fitting = static_cast<std::size_t>(linked.width() / stepX);
    const auto wanted = static_cast<std::size_t>(std::sqrt(kRowsAreWider * static_cast<double>(loose.size()) / 3));
    const std::size_t columns = std::max<std::size_t>({1, fitting, wanted});
    const QPointF first =
        linked.isNull() ? QPointF() : linked.bottomLeft() + QPointF(kBoxSize.width(), stepY + kGap.height()) / 2;
    for (std::size_t i = 0; i < loose.size(); ++i) {
        const auto column = static_cast<double>(i % columns);
        const std::size_t row = i / columns;
        layout.centres[loose[i]] = first + QPointF(column * stepX, static_cast<double>(row) * stepY);
    }
}

QRectF boundsOfLinked(const FlowShape& shape, const FlowLayout& layout) {
    QRectF bounds;
    for (std::size_t i = 0; i < shape.links.size(); ++i) {
        for (const int node : {shape.links[i].first, shape.links[i].second}) {
            const QSizeF size = nodeSize(shape, node);
            bounds |= QRectF(layout.centres[node] - QPointF(size.width() / 2, size.height() / 2), size);
        }
        bounds |= layout.links[i].boundingRect();
    }
    return bounds;
}

} // namespace

FlowLayout layOutFlow(const FlowShape& shape) {
    FlowLayout layout;
    layout.centres.resize(shape.boxes + 1);
    layout.links.resize(shape.links.size());
    const std::vector<int> loose = looseBoxes(shape);
    const bool isSmall =
        shape.boxes - static_cast<int>(loose.size()) <= kGraphvizBoxes && shape.links.size() <= kGraphvizLinks;
    if (!isSmall || !layOutByGraphviz(shape, layout)) {
        layOutInLayers(shape, layout);
    }
    placeLoose(loose, boundsOfLinked(shape, layout), layout);
    return layout;
}

} // namespace planner::desktop
