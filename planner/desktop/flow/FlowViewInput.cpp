// What mouse and keyboard do in the picture of a flow.

#include "planner/desktop/flow/FlowView.h"

#include <QApplication>
#include <QGraphicsLineItem>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <limits>

namespace planner::desktop {

namespace {

constexpr double kZoomStep = 1.25;

/// The direction of an arrow key, none for any other.
QPointF directionOf(int key) {
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

/// How far the eye goes to something that lies there, seen in a direction; what lies aside counts as farther.
double farness(QPointF there, QPointF direction) {
    constexpr double kAside = 2.5;
    const double ahead = QPointF::dotProduct(there, direction);
    const double aside = std::abs(there.x() * direction.y() - there.y() * direction.x());
    return ahead > 1 && aside <= kAside * ahead ? ahead + kAside * aside : std::numeric_limits<double>::infinity();
}

} // namespace

void FlowView::mousePressEvent(QMouseEvent* event) {
    endDrawing(); // another button, while a link is drawn
    pressed_ = event->button() == Qt::LeftButton ? boxAt(event->pos()) : nullptr;
    pressPlace_ = event->pos();
    if (event->button() == Qt::RightButton) { // for the menu that comes up
        BoxItem* const box = boxAt(event->pos());
        if (box && !box->isSelected()) {
            choose(*box, false);
        }
        return;
    }
    if (pressed_) {
        setFocus(Qt::MouseFocusReason);
        return;
    }
    auto* const arrow = dynamic_cast<ArrowItem*>(itemAt(event->pos()));
    const bool further = event->modifiers().testFlag(Qt::ControlModifier);
    for (ArrowItem* const each : arrows_) {
        each->setSelected((further && each->isSelected()) || each == arrow);
    }
    if (!arrow) {
        QGraphicsView::mousePressEvent(event);
    }
}

void FlowView::mouseMoveEvent(QMouseEvent* event) {
    if (!pressed_) {
        QGraphicsView::mouseMoveEvent(event);
        return;
    }
    if (!rubber_ && (event->pos() - pressPlace_).manhattanLength() >= QApplication::startDragDistance()) {
        constexpr double kWidth = 2;
        rubber_ = scene_.addLine({}, QPen(palette().color(QPalette::Highlight), kWidth, Qt::DashLine));
        viewport()->setCursor(Qt::CrossCursor);
    }
    if (rubber_) {
        aim(event->pos());
    }
}

/// Leads the link that is being drawn to a place; a box there is marked as its end.
void FlowView::aim(QPoint place) {
    rubber_->setLine(QLineF(pressed_->pos(), mapToScene(place)));
    rubber_->setVisible(false); // so that it isn't what is found there
    BoxItem* const box = boxAt(place);
    rubber_->setVisible(true);
    if (target_) {
        target_->setTarget(false);
    }
    target_ = box != pressed_ ? box : nullptr;
    if (target_) {
        target_->setTarget(true);
    }
}

void FlowView::endDrawing() {
    delete rubber_;
    rubber_ = nullptr;
    if (target_) {
        target_->setTarget(false);
    }
    pressed_ = nullptr;
    target_ = nullptr;
    viewport()->setCursor(Qt::ArrowCursor);
}

void FlowView::mouseReleaseEvent(QMouseEvent* event) {
    if (!pressed_) {
        const QList<QGraphicsItem*> selected = scene_.selectedItems(); // which a click on the ground would clear
        QGraphicsView::mouseReleaseEvent(event);
        for (QGraphicsItem* const item : selected) {
            item->setSelected(true);
        }
        viewport()->setCursor(Qt::ArrowCursor);
        return;
    }
    BoxItem& box = *pressed_;
    const bool isDrawn = rubber_ != nullptr;
    BoxItem* const target = target_;
    endDrawing();
    if (target) {
        Q_EMIT linkDrawn(&box.object(), &target->object());
    } else if (!isDrawn) {
        choose(box, event->modifiers().testFlag(Qt::ControlModifier));
    }
}

void FlowView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (const BoxItem* const box = boxAt(event->pos())) {
        Q_EMIT opened(&box->object());
    }
}

void FlowView::wheelEvent(QWheelEvent* event) {
    constexpr double kNotch = 120;
    zoom(std::pow(kZoomStep, event->angleDelta().y() / kNotch));
    event->accept();
}

/// The window may have a meaning of its own for keys that are ours as long as the picture has the focus.
bool FlowView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        const bool removes = key->key() == Qt::Key_Delete && !selectedArrows().empty();
        const bool walks = directionOf(key->key()) != QPointF() && key->modifiers().testFlag(Qt::AltModifier);
        if (removes || walks) {
            event->accept();
            return true;
        }
    }
    return QGraphicsView::event(event);
}

void FlowView::keyPressEvent(QKeyEvent* event) {
    if (!runKey(event->key(), event->modifiers())) {
        event->ignore();
    }
}

bool FlowView::runKey(int key, Qt::KeyboardModifiers modifiers) {
    const QPointF direction = directionOf(key);
    if (direction != QPointF()) {
        modifiers.testFlag(Qt::AltModifier) ? nextLink(direction.x() + direction.y() > 0 ? 1 : -1)
                                            : static_cast<void>(goTo(direction, modifiers.testFlag(Qt::ShiftModifier)));
        return true;
    }
    switch (key) {
    case Qt::Key_Delete: {
        std::vector<FlowArrow> arrows;
        for (const ArrowItem* arrow : selectedArrows()) {
            arrows.push_back(arrow->arrow());
        }
        if (arrows.empty()) {
            Q_EMIT boxRemovalAsked();
        } else {
            Q_EMIT removalAsked(arrows);
        }
        return true;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (const BoxItem* const box = currentBox()) {
            Q_EMIT opened(&box->object());
        }
        return true;
    case Qt::Key_Backspace:
        Q_EMIT upAsked();
        return true;
    case Qt::Key_Escape:
        endDrawing();
        return true;
    case Qt::Key_Plus:
        zoom(kZoomStep);
        return true;
    case Qt::Key_Minus:
        zoom(1 / kZoomStep);
        return true;
    case Qt::Key_0:
        fit();
        return true;
    default:
        return false;
    }
}

/// Chooses the nearest step in a direction; gives whether there is one.
bool FlowView::goTo(QPointF direction, bool further) {
    const BoxItem* const from = currentBox();
    BoxItem* nearest = nullptr;
    double least = std::numeric_limits<double>::infinity();
    for (BoxItem* const box : boxes_) {
        const double far = from ? farness(box->pos() - from->pos(), direction) : box->pos().x();
        if (far < least) {
            least = far;
            nearest = box;
        }
    }
    if (nearest) {
        choose(*nearest, further);
    }
    return nearest != nullptr;
}

/// Selects the next of the links of the present step, or of all when there is none.
void FlowView::nextLink(int step) {
    std::vector<ArrowItem*> links;
    std::copy_if(arrows_.begin(), arrows_.end(), std::back_inserter(links), [&](const ArrowItem* each) {
        return current_ < 0 || each->arrow().from == current_ || each->arrow().to == current_;
    });
    if (links.empty()) {
        return;
    }
    const auto selected =
        std::find_if(links.begin(), links.end(), [](const ArrowItem* each) { return each->isSelected(); });
    const auto count = static_cast<std::ptrdiff_t>(links.size());
    const std::ptrdiff_t at = selected == links.end() ? (step > 0 ? -1 : count) : selected - links.begin();
    for (ArrowItem* const arrow : arrows_) {
        arrow->setSelected(arrow == links[(at + step + count) % count]);
    }
}

/// Tab goes through the steps, and on to the next part of the window behind the last one.
bool FlowView::focusNextPrevChild(bool next) {
    const int wanted = current_ + (next ? 1 : -1);
    if (wanted < 0 || wanted >= static_cast<int>(boxes_.size())) {
        current_ = -1;
        return QGraphicsView::focusNextPrevChild(next);
    }
    choose(*boxes_[wanted], false);
    return true;
}

} // namespace planner::desktop
