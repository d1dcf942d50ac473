#include "planner/desktop/flow/FlowView.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QGraphicsLineItem>
#include <QTransform>

#include <algorithm>

namespace planner::desktop {

namespace {

constexpr double kReadable = 0.85; // smallest scale at which names are still read
constexpr double kSmallest = 0.02;
constexpr double kLargest = 4;

FlowShape shapeOf(const FlowGraph& graph) {
    FlowShape shape{static_cast<int>(graph.boxes.size()), {}};
    for (const FlowArrow& arrow : graph.arrows) {
        shape.links.emplace_back(arrow.from, arrow.to);
    }
    for (const int box : graph.lastBoxes) {
        shape.links.emplace_back(box, shape.boxes);
    }
    return shape;
}

} // namespace

FlowView::FlowView(QWidget* parent) : QGraphicsView(parent) {
    setObjectName("flow-view");
    setAccessibleName("Flow");
    setScene(&scene_);
    setFrameShape(QFrame::NoFrame);
    setRenderHint(QPainter::Antialiasing);
    setDragMode(ScrollHandDrag);
    setTransformationAnchor(AnchorUnderMouse);
    setMouseTracking(true);
    viewport()->setCursor(Qt::ArrowCursor);
}

void FlowView::show(FlowGraph graph, bool isNewFlow) {
    endDrawing();
    graph_ = std::move(graph);
    FlowShape shape = shapeOf(graph_);
    if (shape != shape_) {
        layout_ = layOutFlow(shape);
        shape_ = std::move(shape);
    }
    build();
    if (isNewFlow) {
        fitsItself_ = true;
        current_ = -1;
    }
    if (fitsItself_) {
        fitReadably();
    }
}

void FlowView::build() {
    scene_.clear();
    boxes_.clear();
    arrows_.clear();
    const double unit = QFontMetricsF(font()).height();
    const QTransform toScene = QTransform::fromScale(unit, unit);
    for (std::size_t i = 0; i < graph_.boxes.size(); ++i) {
        auto* const box = new BoxItem(graph_.boxes[i], static_cast<int>(i), unit,
                                      remark_ ? remark_(*graph_.boxes[i].object.Get()) : QString());
        box->setPos(toScene.map(layout_.centres[i]));
        scene_.addItem(box);
        boxes_.push_back(box);
    }
    for (std::size_t i = 0; i < shape_.links.size(); ++i) {
        const auto& [from, to] = shape_.links[i];
        const bool isDrawn = i < graph_.arrows.size();
        auto* const item = new ArrowItem(isDrawn ? graph_.arrows[i] : FlowArrow{from, to, {}, {}, true, false},
                                         toScene.map(layout_.links[i]), unit);
        scene_.addItem(item);
        if (isDrawn) {
            arrows_.push_back(item);
        }
    }
    if (!graph_.lastBoxes.empty()) {
        auto* const end = new EndItem(unit);
        end->setPos(toScene.map(layout_.centres.back()));
        scene_.addItem(end);
    }
    scene_.setSceneRect(scene_.itemsBoundingRect().adjusted(-unit, -unit, unit, unit));
}

void FlowView::mark(const std::function<bool(const ModelObject&)>& isChosen) {
    BoxItem* last = nullptr;
    bool keepsCurrent = false;
    for (BoxItem* const box : boxes_) {
        const bool marked = isChosen(box->object());
        box->setSelected(marked);
        last = marked ? box : last;
        keepsCurrent = keepsCurrent || (marked && box->place() == current_);
    }
    if (last && !keepsCurrent) {
        current_ = last->place();
    }
    if (last) {
        constexpr int kMargin = 12;
        ensureVisible(currentBox(), kMargin, kMargin);
    }
}

const BoxItem* FlowView::boxOf(const ModelObject& object) const {
    const auto box =
        std::find_if(boxes_.begin(), boxes_.end(), [&](const BoxItem* each) { return &each->object() == &object; });
    return box == boxes_.end() ? nullptr : *box;
}

QPoint FlowView::placeOf(const ModelObject& object) const {
    const BoxItem* const box = boxOf(object);
    return box ? mapFromScene(box->pos()) : QPoint();
}

ArrowItem* FlowView::arrowBetween(const ModelObject& from, const ModelObject& to) const {
    const auto arrow = std::find_if(arrows_.begin(), arrows_.end(), [&](const ArrowItem* each) {
        return each->arrow().start.Get() == &from && each->arrow().end.Get() == &to;
    });
    return arrow == arrows_.end() ? nullptr : *arrow;
}

BoxItem* FlowView::boxAt(QPoint place) const {
    return dynamic_cast<BoxItem*>(itemAt(place));
}

BoxItem* FlowView::currentBox() const {
    return current_ >= 0 && current_ < static_cast<int>(boxes_.size()) ? boxes_[current_] : nullptr;
}

std::vector<ArrowItem*> FlowView::selectedArrows() const {
    std::vector<ArrowItem*> selected;
    std::copy_if(arrows_.begin(), arrows_.end(), std::back_inserter(selected),
                 [](const ArrowItem* arrow) { return arrow->isSelected(); });
    return selected;
}

void FlowView::choose(BoxItem& box, bool further) {
    std::vector<ModelObject*> objects;
    for (const BoxItem* each : boxes_) {
        if (further && each->isSelected() && each != &box) {
            objects.push_back(&each->object());
        }
    }
    for (ArrowItem* const arrow : arrows_) {
        arrow->setSelected(false);
    }
    objects.push_back(&box.object());
    current_ = box.place();
    Q_EMIT chosen(objects);
}

void FlowView::fit() {
    const QRectF all = sceneRect();
    if (all.isEmpty()) {
        return;
    }
    const double scale = std::min({viewport()->width() / all.width(), viewport()->height() / all.height(), 1.0});
    setTransform(QTransform::fromScale(scale, scale));
    centerOn(all.center());
    fitsItself_ = true;
}

/// As much of the picture as can be read, from the beginning on.
void FlowView::fitReadably() {
    fit();
    if (!boxes_.empty() && transform().m11() < kReadable) {
        setTransform(QTransform::fromScale(kReadable, kReadable));
        const BoxItem* const current = currentBox();
        centerOn(current ? current : boxes_.front());
    }
}

void FlowView::zoom(double factor) {
    const double now = transform().m11();
    const double wanted = std::clamp(now * factor, kSmallest, kLargest);
    scale(wanted / now, wanted / now);
    fitsItself_ = false;
}

void FlowView::changeEvent(QEvent* event) {
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::FontChange && !boxes_.empty()) {
        show(std::move(graph_), false);
    }
}

void FlowView::resizeEvent(QResizeEvent* event) {
    QGraphicsView::resizeEvent(event);
    if (fitsItself_) {
        fitReadably();
    }
}

} // namespace planner::desktop
