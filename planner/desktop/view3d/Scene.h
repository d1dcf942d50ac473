#pragma once

#include "planner/desktop/view3d/Graphics.h"

#include "QORPlatform/visualization/QORViewpoint.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QStringList>

#include <AIS_ConnectedInteractive.hxx>
#include <AIS_InteractiveContext.hxx>
#include <V3d_View.hxx>

#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace planner::desktop {

/// What is shown in one viewpoint, and the camera that looks at it. Notes what changes, and follows when it is drawn or
/// asked. Equal shapes have one prototype. Positions are in device pixels of the picture. Operations may raise
/// Standard_Failure where OpenGL fails.
class Scene {
public:
    Scene(std::shared_ptr<Graphics> graphics, QOR3DViewpoint& viewpoint);

    /// An object is shown from now on, has changed, is shown no longer.
    void note(QORBaseUnknown& object) { stale_.insert(&object); }
    void drop(QORBaseUnknown& object);
    void noteSelection() { isSelectionStale_ = true; }

    /// Makes or moves what is out of date, and lights what is in the viewpoint's sets. What can't be made is a fault,
    /// told with the object's name.
    void follow();
    QStringList faults() const;
    bool isEmpty() const { return objects_.empty(); }

    /// Size of the picture in pixels from now on, and how many of them go on one of the screen at 100 %: what isn't
    /// part of the space, names of axes and lines, is as large for the eye on every screen.
    void resize(const QSize& size, double ratio = 1);
    QImage draw(bool isDark);

    /// The object that is seen at a position, null for none; all that is wholly seen in a frame.
    QORBaseUnknown* objectAt(const QPoint& position);
    std::vector<QORBaseUnknown*> objectsIn(const QRect& frame);

    QORCamera camera() const;
    void setCamera(const QORCamera& camera);
    void fitAll();
    /// Looks along a direction, fitted.
    void look(V3d_TypeOfOrientation direction);
    /// Looks as a new viewpoint does, fitted.
    void lookAsAtFirst();
    /// Turns about the middle of the picture, upright; in radians.
    void orbit(double right, double down);
    void pan(const QPoint& pixels);
    /// Closer by a factor, where the position stays in place.
    void zoom(const QPoint& position, double factor);
    void setPerspective(bool isPerspective);
    void setWireframe(bool isWireframe);

private:
    enum class Light { None, Picked, Hovered };
    struct Prototype {
        Handle(AIS_InteractiveObject) object;
        std::shared_ptr<const Solid> solid;
        int users = 0;
    };
    struct Shown {
        Handle(AIS_ConnectedInteractive) object; ///< null for what can't be made
        Handle(AIS_ConnectedInteractive) shine;  ///< the same in front of all else while it is picked, else null
        std::string prototype;
        long revision = 0;
        Light light = Light::None;
        QString fault;
    };

    void make(QORBaseUnknown& object, Shown& shown);
    void place(Shown& shown, const gp_Trsf& where);
    void erase(Shown& shown);
    std::string prototypeOf(QORBaseUnknown& object, const QORGeoShape& shape);
    void dropUnused();
    void lightSets();
    void light(Shown& shown, Light light);
    void shine(Shown& shown, bool isOn);

    std::shared_ptr<Graphics> graphics_;
    QOR3DViewpoint& viewpoint_;
    Handle(V3d_Viewer) viewer_;
    Handle(AIS_InteractiveContext) context_;
    Handle(V3d_View) view_;
    QSize size_;
    double ratio_ = 0; // none yet
    std::unordered_map<QORBaseUnknown*, Shown> shown_;
    std::unordered_map<const Standard_Transient*, QORBaseUnknown*> objects_;
    std::unordered_map<std::string, Prototype> prototypes_;
    std::unordered_set<QORBaseUnknown*> stale_;
    std::unordered_set<QORBaseUnknown*> lit_;
    Handle(Prs3d_Drawer) styles_[3]; ///< by Light
    Handle(Prs3d_Drawer) shine_;
    bool isSelectionStale_ = true;
};

} // namespace planner::desktop
