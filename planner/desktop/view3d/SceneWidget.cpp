#include "planner/desktop/view3d/SceneWidget.h"

#include "planner/desktop/view3d/Scene.h"

#include "QORPlatform/visualization/QORViewer.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QRubberBand>
#include <QToolBar>

#include <Standard_Failure.hxx>

#include <cmath>
#include <numbers>
#include <utility>

namespace planner::desktop {

SceneWidget::SceneWidget(std::shared_ptr<Graphics> graphics, QORViewer& viewer, QOR3DViewpoint& viewpoint,
                         QWidget* parent)
    : QWidget(parent), viewer_(viewer), viewpoint_(viewpoint),
      scene_(std::make_unique<Scene>(std::move(graphics), viewpoint)), faults_(new QLabel(this)),
      bar_(new QToolBar(this)), menu_(new QMenu(this)), frame_(new QRubberBand(QRubberBand::Rectangle, this)) {
    constexpr QSize kLeast(120, 90);
    constexpr int kMargin = 6;
    setObjectName("scene");
    setAccessibleName("Items in space");
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(kLeast);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    faults_->setObjectName("scene-faults");
    faults_->setWordWrap(true);
    faults_->setMargin(kMargin);
    faults_->setAutoFillBackground(true);
    faults_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    faults_->hide();
    makeActions();
}

SceneWidget::~SceneWidget() = default;

void SceneWidget::end() {
    scene_.reset();
    image_ = QImage();
    setEnabled(false);
    update();
}

void SceneWidget::changed() {
    isStale_ = true;
    update();
}

void SceneWidget::fitSoon() {
    isFitDue_ = true;
    changed();
}

void SceneWidget::followCamera() {
    isCameraMoved_ = true;
    isFitDue_ = false;
    if (scene_) {
        scene_->setCamera(viewpoint_.GetCamera());
    }
    changed();
}

/// Of the picture, which ends above what can't be shown.
QSize SceneWidget::pixels() const {
    const int told = faults_->isVisibleTo(this) ? faults_->height() : 0;
    return (QSizeF(width(), height() - told) * devicePixelRatioF()).toSize().expandedTo(QSize(1, 1));
}

QPoint SceneWidget::pixelAt(const QPoint& position) const {
    return (QPointF(position) * devicePixelRatioF()).toPoint();
}

/// Runs something on the scene, after which the camera may be another.
void SceneWidget::perform(const std::function<void(Scene&)>& command) {
    if (!scene_) {
        return;
    }
    try {
        command(*scene_);
        isCameraMoved_ = true;
        viewpoint_.ReportCamera(scene_->camera());
    } catch (const Standard_Failure& failure) {
        fail(QString::fromStdString(reasonOf(failure)));
    }
    changed();
}

/// As long as nobody has moved the camera all is kept in view.
void SceneWidget::render() {
    scene_->follow();
    showFaults();
    scene_->resize(pixels(), devicePixelRatioF());
    if (isFitDue_ || !isCameraMoved_) {
        scene_->fitAll();
        isFitDue_ = false;
        viewpoint_.ReportCamera(scene_->camera());
    }
    image_ = scene_->draw(palette().color(QPalette::Window).lightness() < 128);
    image_.setDevicePixelRatio(devicePixelRatioF());
    failure_.clear();
}

void SceneWidget::fail(const QString& reason) {
    failure_ = "No 3D picture: " + reason;
    image_ = QImage();
}

void SceneWidget::paintEvent(QPaintEvent*) {
    if (scene_ && (std::exchange(isStale_, false) || image_.size() != pixels())) {
        try {
            render();
        } catch (const Standard_Failure& failure) {
            fail(QString::fromStdString(reasonOf(failure)));
        } catch (const std::exception& failure) {
            fail(failure.what());
        }
    }
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    if (!image_.isNull()) {
        painter.drawImage(0, 0, image_);
    }
    if (!failure_.isEmpty() || (scene_ && scene_->isEmpty())) {
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         failure_.isEmpty() ? "No item here has a shape." : failure_);
    }
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void SceneWidget::showFaults() {
    constexpr int kShown = 3;
    QStringList faults = scene_->faults();
    if (faults.size() > kShown) {
        const QString rest = QString("and %1 more").arg(faults.size() - kShown + 1);
        faults = faults.mid(0, kShown - 1) << rest;
    }
    faults_->setText(faults.join('\n'));
    faults_->setVisible(!faults.isEmpty());
    const int height = faults_->heightForWidth(width());
    faults_->setGeometry(0, this->height() - height, width(), height);
}

void SceneWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    bar_->resize(std::min(bar_->sizeHint().width(), width()), bar_->sizeHint().height());
    bar_->move(width() - bar_->width(), 0);
    if (scene_) {
        const QSize size = pixels();
        viewer_.SetGraphicSize(static_cast<float>(size.width()), static_cast<float>(size.height()));
    }
    changed();
}

void SceneWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        changed();
    }
}

void SceneWidget::leaveEvent(QEvent*) {
    if (scene_) {
        viewer_.ReportHover(viewpoint_, nullptr);
    }
}

void SceneWidget::mousePressEvent(QMouseEvent* event) {
    pressed_ = last_ = event->position().toPoint();
    drag_ = Drag::None;
}

void SceneWidget::mouseMoveEvent(QMouseEvent* event) {
    const QPoint position = event->position().toPoint();
    const Qt::MouseButtons buttons = event->buttons();
    if (!scene_) {
        return;
    }
    if (!(buttons & (Qt::LeftButton | Qt::MiddleButton))) {
        point(position);
        return;
    }
    if (drag_ == Drag::None && (position - pressed_).manhattanLength() >= QApplication::startDragDistance()) {
        const bool moves = (buttons & Qt::MiddleButton) || (event->modifiers() & Qt::ShiftModifier);
        drag_ = moves ? Drag::Move : event->modifiers() & Qt::ControlModifier ? Drag::Frame : Drag::Turn;
    }
    drag(position);
}

void SceneWidget::drag(const QPoint& to) {
    const QPoint way = to - std::exchange(last_, drag_ == Drag::None ? last_ : to);
    if (drag_ == Drag::Frame) {
        frame_->setGeometry(QRect(pressed_, to).normalized());
        frame_->show();
    } else if (drag_ == Drag::Move) {
        perform([&](Scene& scene) { scene.pan(pixelAt(way)); });
    } else if (drag_ == Drag::Turn) {
        const double turn = std::numbers::pi / std::max(1, std::min(width(), height()));
        perform([&](Scene& scene) { scene.orbit(way.x() * turn, way.y() * turn); });
    }
}

void SceneWidget::mouseReleaseEvent(QMouseEvent* event) {
    const Drag drag = std::exchange(drag_, Drag::None);
    if (drag == Drag::Frame) {
        pickFrame();
    } else if (drag == Drag::None && event->button() == Qt::LeftButton) {
        pick(event->modifiers() & Qt::ControlModifier);
    }
}

void SceneWidget::mouseDoubleClickEvent(QMouseEvent*) {
    perform([](Scene& scene) { scene.fitAll(); });
}

// A report is the last that each of these does: who hears of it may end the viewer.

void SceneWidget::point(const QPoint& at) {
    try {
        viewer_.ReportHover(viewpoint_, scene_->objectAt(pixelAt(at)));
    } catch (const Standard_Failure& failure) {
        fail(QString::fromStdString(reasonOf(failure)));
    }
}

void SceneWidget::pick(bool extends) {
    if (!scene_) {
        return;
    }
    try {
        QORBaseUnknown* const object = scene_->objectAt(pixelAt(last_));
        if (object || !extends) {
            viewer_.ReportPick(viewpoint_, object, extends);
        }
    } catch (const Standard_Failure& failure) {
        fail(QString::fromStdString(reasonOf(failure)));
    }
}

void SceneWidget::pickFrame() {
    frame_->hide();
    if (!scene_) {
        return;
    }
    try {
        const QRect frame = frame_->geometry();
        const auto objects = scene_->objectsIn(QRect(pixelAt(frame.topLeft()), pixelAt(frame.bottomRight())));
        viewer_.ReportPicks(viewpoint_, objects, true);
    } catch (const Standard_Failure& failure) {
        fail(QString::fromStdString(reasonOf(failure)));
    }
}

void SceneWidget::wheelEvent(QWheelEvent* event) {
    constexpr double kPerStep = 1.15;
    constexpr double kStep = 120;
    const double factor = std::pow(kPerStep, event->angleDelta().y() / kStep);
    const QPoint at = event->position().toPoint();
    perform([&](Scene& scene) { scene.zoom(pixelAt(at), factor); });
    event->accept();
}

void SceneWidget::contextMenuEvent(QContextMenuEvent* event) {
    menu_->popup(event->globalPos());
}

} // namespace planner::desktop
