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

/// Looks at a scene in space.
class QOR_EXPORT QOR3DViewpoint : public QORViewpoint {
public:
    QOR3DViewpoint();
    ~QOR3DViewpoint() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
};
