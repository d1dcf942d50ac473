#pragma once

#include "QORPlatform/framework/QORBaseUnknown.h"
#include "QORPlatform/framework/QORObjectCounts.h"

class QORViewer;

/// One way of looking at something in a viewer, which keeps it. What is shown in it knows the visualization manager.
class QOR_EXPORT QORViewpoint : public QORBaseUnknown, private QORCounted<QORViewpoint> {
public:
    static constexpr std::string_view kCountName = "QORViewpoint";

    ~QORViewpoint() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    /// The viewer that keeps this viewpoint; null as long as none has taken it, and when that has ended.
    QORViewer* GetViewer() const { return _viewer; }

protected:
    QORViewpoint() = default;

private:
    friend class QORViewer;

    QORViewer* _viewer = nullptr;
};

/// Looks at a plane, of a tree's graph say.
class QOR_EXPORT QOR2DViewpoint : public QORViewpoint {
public:
    QOR2DViewpoint();
    ~QOR2DViewpoint() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
};

/// From where a scene in space is looked at, in millimetres.
struct QORCamera {
    double eye[3] = {600, -1000, 500};
    double target[3] = {0, 0, 0}; ///< what the eye looks at, in the middle of the picture
    double up[3] = {0, 0, 1};     ///< points upwards in the picture; any length but 0
    double height = 1000;         ///< of what is seen at the target, from the lower to the upper edge
    bool isPerspective = false;   ///< what is farther away is smaller
};

/// Looks at a scene in space, through a camera of its own.
class QOR_EXPORT QOR3DViewpoint : public QORViewpoint {
public:
    QOR3DViewpoint();
    ~QOR3DViewpoint() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    const QORCamera& GetCamera() const { return _camera; }

    /// Moves the camera; the viewer's peer follows.
    void SetCamera(const QORCamera& iCamera);

    /// A person has moved the camera, or the peer has: it is there already.
    void ReportCamera(const QORCamera& iCamera) { _camera = iCamera; }

private:
    QORCamera _camera;
};
