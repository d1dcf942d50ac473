#pragma once

#include "QORPlatform/framework/QORObjectCounts.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORString.h"
#include "QORPlatform/visualization/QORViewpoint.h"

/// What a person may do in a viewpoint. Counts on its viewpoint; the viewer keeps the editor.
class QOR_EXPORT QORViewpointEditor : public QORBaseUnknown, private QORCounted<QORViewpointEditor> {
public:
    static constexpr std::string_view kCountName = "QORViewpointEditor";

    ~QORViewpointEditor() override;

    const QORString& GetName() const { return _name; }
    QORViewpoint* GetViewpoint() const { return _viewpoint.Get(); }

protected:
    QORViewpointEditor(const QORString& iName, QORViewpoint* iViewpoint) : _name(iName), _viewpoint(iViewpoint) {}

private:
    QORString _name;
    QORVar<QORViewpoint> _viewpoint;
};

/// How much one pick takes.
inline constexpr int kQORPickOne = 0; ///< the object under the pointer

/// Lets a person pick in a 2D viewpoint.
class QOR_EXPORT QOR2DPickViewpointEditor : public QORViewpointEditor {
public:
    /// iMode is one of the values above.
    QOR2DPickViewpointEditor(const QORString& iName, QOR2DViewpoint* iViewpoint, int iMode);
    ~QOR2DPickViewpointEditor() override;

    int GetMode() const { return _mode; }

private:
    int _mode;
};
