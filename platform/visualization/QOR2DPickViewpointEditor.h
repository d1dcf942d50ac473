#pragma once

#include "QORPlatform/visualization/QOR2DViewpoint.h"
#include "QORPlatform/visualization/QORViewpointEditor.h"

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
