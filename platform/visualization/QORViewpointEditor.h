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
