// The commands of a scene: on its bar, in its menu and on keys.

#include "planner/desktop/view3d/Scene.h"
#include "planner/desktop/view3d/SceneWidget.h"

#include <QMenu>
#include <QToolBar>
#include <QToolButton>

namespace planner::desktop {

namespace {

struct Direction {
    const char* text;
    const char* key;
    V3d_TypeOfOrientation direction;
};

// Keys as on a number pad.
constexpr Direction kDirections[] = {
    {"&Front", "1", V3d_Yneg}, {"Bac&k", "4", V3d_Ypos}, {"&Right", "3", V3d_Xpos},
    {"&Left", "6", V3d_Xneg},  {"&Top", "7", V3d_Zpos},  {"&Bottom", "8", V3d_Zneg},
};

} // namespace

/// A command that works while the scene has the keyboard.
QAction* SceneWidget::addCommand(const QString& text, const QString& keys, const std::function<void(Scene&)>& command) {
    auto* const action = new QAction(text, this);
    QList<QKeySequence> sequences;
    for (const QString& each : keys.split(' ')) {
        sequences << QKeySequence(each);
    }
    action->setShortcuts(sequences);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, [this, command] { perform(command); });
    addAction(action);
    return action;
}

QAction* SceneWidget::addSwitch(const QString& text, const QString& keys, void (Scene::*command)(bool)) {
    auto* const action = addCommand(text, keys, [](Scene&) {});
    action->setCheckable(true);
    connect(action, &QAction::toggled, this,
            [this, command](bool isOn) { perform([&](Scene& scene) { (scene.*command)(isOn); }); });
    return action;
}

void SceneWidget::addViews(QMenu& views) {
    for (const Direction& each : kDirections) {
        views.addAction(
            addCommand(each.text, each.key, [direction = each.direction](Scene& scene) { scene.look(direction); }));
    }
    views.addAction(addCommand("&Oblique", "9", [](Scene& scene) { scene.lookAsAtFirst(); }));
}

/// What the mouse does otherwise.
void SceneWidget::addNavigation() {
    constexpr double kTurn = 0.15;
    constexpr int kMove = 40;
    constexpr double kZoom = 1.25;
    const auto turn = [](double right, double down) {
        return [=](Scene& scene) {
            scene.orbit(right * kTurn, down * kTurn);
        };
    };
    const auto move = [](int right, int down) {
        return [=](Scene& scene) {
            scene.pan(QPoint(right, down) * kMove);
        };
    };
    const auto zoom = [this](double factor) {
        return [=, this](Scene& scene) {
            scene.zoom(pixelAt(rect().center()), factor);
        };
    };
    addCommand("Turn left", "Left", turn(-1, 0));
    addCommand("Turn right", "Right", turn(1, 0));
    addCommand("Turn up", "Up", turn(0, -1));
    addCommand("Turn down", "Down", turn(0, 1));
    addCommand("Move left", "Shift+Left", move(-1, 0));
    addCommand("Move right", "Shift+Right", move(1, 0));
    addCommand("Move up", "Shift+Up", move(0, -1));
    addCommand("Move down", "Shift+Down", move(0, 1));
    menu_->addAction(addCommand("Zoom &in", "+ =", zoom(kZoom)));
    menu_->addAction(addCommand("Zoom &out", "-", zoom(1 / kZoom)));
}

void SceneWidget::makeActions() {
    QAction* const fit = addCommand("&Fit", "F Home", [](Scene& scene) { scene.fitAll(); });
    auto* const views = new QMenu("&Views", this);
    addViews(*views);
    QAction* const perspective = addSwitch("&Perspective", "5", &Scene::setPerspective);
    QAction* const wireframe = addSwitch("&Wireframe", "W", &Scene::setWireframe);
    perspective->setObjectName("scene-perspective");
    wireframe->setObjectName("scene-wireframe");
    menu_->addAction(fit);
    menu_->addMenu(views);
    menu_->addSeparator();
    addNavigation();
    menu_->addSeparator();
    menu_->addActions({perspective, wireframe});
    bar_->addAction(fit);
    bar_->addAction(views->menuAction());
    bar_->addActions({perspective, wireframe});
    static_cast<QToolButton*>(bar_->widgetForAction(views->menuAction()))->setPopupMode(QToolButton::InstantPopup);
    bar_->setAutoFillBackground(false);
    bar_->setCursor(Qt::ArrowCursor);
}

} // namespace planner::desktop
