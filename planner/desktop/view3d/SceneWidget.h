#pragma once

#include <QImage>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

class QOR3DViewpoint;
class QORBaseUnknown;
class QORViewer;
class QLabel;
class QMenu;
class QRubberBand;
class QToolBar;

namespace planner::desktop {

class Graphics;
class Scene;

/// The picture of a viewpoint, with all that a person does in it: turn, move and zoom, point and pick. Keeps the scene
/// in view by itself until somebody moves the camera.
class SceneWidget : public QWidget {
    Q_OBJECT

public:
    /// Raises Standard_Failure or std::runtime_error when nothing can be drawn.
    SceneWidget(std::shared_ptr<Graphics> graphics, QORViewer& viewer, QOR3DViewpoint& viewpoint, QWidget* parent);
    ~SceneWidget() override;

    /// The viewpoint has gone: nothing is shown any more.
    void end();

    /// Null after the end.
    Scene* scene() const { return scene_.get(); }

    /// The scene has changed: paint it soon.
    void changed();

    /// Fit what is shown when it is painted next; look where the viewpoint's camera does.
    void fitSoon();
    void followCamera();

    QSize sizeHint() const override { return {720, 540}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    enum class Drag { None, Turn, Move, Frame };

    void makeActions();
    void addNavigation();
    void addViews(QMenu& views);
    QAction* addCommand(const QString& text, const QString& keys, const std::function<void(Scene&)>& command);
    QAction* addSwitch(const QString& text, const QString& keys, void (Scene::*command)(bool));
    void perform(const std::function<void(Scene&)>& command);

    void render();
    void showFaults();
    void fail(const QString& reason);
    void drag(const QPoint& to);
    void point(const QPoint& at);
    void pick(bool extends);
    void pickFrame();
    QPoint pixelAt(const QPoint& position) const;
    QSize pixels() const;

    QORViewer& viewer_;
    QOR3DViewpoint& viewpoint_;
    std::unique_ptr<Scene> scene_;
    QImage image_;
    QString failure_;
    QLabel* faults_;
    QToolBar* bar_;
    QMenu* menu_;
    QRubberBand* frame_;
    QPoint pressed_;
    QPoint last_;
    Drag drag_ = Drag::None;
    bool isStale_ = true;
    bool isFitDue_ = true;
    bool isCameraMoved_ = false;
};

} // namespace planner::desktop
