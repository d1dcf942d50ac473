// A plain rule for flows that are too large to be arranged with care: a box stands one column behind the last of those
// that lead to it, links that close a loop left aside; in a column boxes stand by the height of those before them.
// Costs in proportion to boxes and links, but for the sorting of columns.

#include "planner/desktop/flow/FlowLayout.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace planner::desktop {

namespace {

constexpr double kBow = 2.5; // how far a link bends that leads back

/// Columns of all nodes. What is left when no node without an open link to it remains lies behind a loop; the first of
/// it is taken as if its loop began there.
std::vector<int> columnsOf(const FlowShape& shape) {
    std::vector<std::vector<int>> successors(shape.boxes + 1);
    std::vector<int> openLinks(shape.boxes + 1, 0);
    for (const auto& [from, to] : shape.links) {
        successors[from].push_back(to);
        ++openLinks[to];
    }
    std::vector<int> columns(shape.boxes + 1, 0);
    std::vector<bool> isDone(shape.boxes + 1, false);
    std::vector<int> ready;
    const auto takeReady = [&] {
        while (!ready.empty()) {
            const int node = ready.back();
            ready.pop_back();
            isDone[node] = true;
            for (const int next : successors[node]) {
                if (!isDone[next]) {
                    columns[next] = std::max(columns[next], columns[node] + 1);
                    if (--openLinks[next] == 0) {
                        ready.push_back(next);
                    }
                }
            }
        }
    };
    for (int node = 0; node <= shape.boxes; ++node) {
        if (openLinks[node] == 0 && !isDone[node]) {
            ready.push_back(node);
        }
    }
    takeReady();
    for (int node = 0; node <= shape.boxes; ++node) {
        if (!isDone[node]) {
            ready.push_back(node);
            takeReady();
        }
    }
    return columns;
}

QPainterPath curve(const FlowShape& shape, const FlowLayout& layout, int from, int to) {
    const QPointF start = layout.centres[from] + QPointF(nodeSize(shape, from).width() / 2, 0);
    const QPointF end = layout.centres[to] - QPointF(nodeSize(shape, to).width() / 2, 0);
    const bool leadsOn = end.x() > start.x();
    const double reach = leadsOn ? kGap.width() / 2 : kGap.width();
    const double bow = leadsOn ? 0 : kBow * kBoxSize.height();
    QPainterPath path(start);
    path.cubicTo(start + QPointF(reach, bow), end + QPointF(-reach, bow), end);
    return path;
}

} // namespace

void layOutInLayers(const FlowShape& shape, FlowLayout& layout) {
    const std::vector<int> columns = columnsOf(shape);
    std::vector<std::vector<int>> predecessors(shape.boxes + 1);
    for (const auto& [from, to] : shape.links) {
        predecessors[to].push_back(from);
    }
    std::map<int, std::vector<int>> byColumn;
    for (const auto& [from, to] : shape.links) {
        byColumn[columns[from]].push_back(from);
        byColumn[columns[to]].push_back(to);
    }
    std::vector<double> height(shape.boxes + 1, 0);
    for (auto& [column, nodes] : byColumn) {
        std::sort(nodes.begin(), nodes.end());
        nodes.erase(std::unique(nodes.begin(), nodes.end()), nodes.end());
        for (const int node : nodes) {
            const auto& before = predecessors[node];
            height[node] = std::accumulate(before.begin(), before.end(), 0.0,
                                           [&](double sum, int each) { return sum + layout.centres[each].y(); }) /
                           std::max<double>(1, static_cast<double>(before.size()));
        }
        std::stable_sort(nodes.begin(), nodes.end(), [&](int a, int b) { return height[a] < height[b]; });
        double y = -static_cast<double>(nodes.size() - 1) / 2;
        for (const int node : nodes) {
            layout.centres[node] = {column * (kBoxSize.width() + kGap.width()),
                                    y++ * (kBoxSize.height() + kGap.height())};
        }
    }
    for (std::size_t i = 0; i < shape.links.size(); ++i) {
        layout.links[i] = curve(shape, layout, shape.links[i].first, shape.links[i].second);
    }
}

} // namespace planner::desktop
