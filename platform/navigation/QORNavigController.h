#pragma once

#include "QORPlatform/text/QORExport.h"

class QORNavigBox;

/// How deep a person may open nodes: any number of levels below the roots, or no limit.
inline constexpr int kQORDepthUnlimited = -1;

/// How far a selection goes.
inline constexpr int kQORExtensionSingle = 0;   ///< one node; selecting another lets it go
inline constexpr int kQORExtensionMultiple = 1; ///< a person may add nodes to the selection

/// Settings of one tree box, which owns it. They hold for what comes; what is open or selected stays.
class QOR_EXPORT QORNavigController {
public:
    explicit QORNavigController(QORNavigBox& iBox) : _box(iBox) {}
    QORNavigController(const QORNavigController&) = delete;
    QORNavigController& operator=(const QORNavigController&) = delete;

    /// Number of levels below the roots that can be opened: 0 none, kQORDepthUnlimited (at first) any.
    void SetDepth(int iDepth);
    int GetDepth() const { return _depth; }

    /// From now on an object that is shown in the box isn't shown a second time. At first it may be.
    void SetNoDuplicate();
    bool IsNoDuplicate() const { return _noDuplicate; }

    /// One of the values above, kQORExtensionSingle at first.
    void SetExtensionMode(int iMode);
    int GetExtensionMode() const { return _extensionMode; }

private:
    QORNavigBox& _box;
    int _depth = kQORDepthUnlimited;
    bool _noDuplicate = false;
    int _extensionMode = kQORExtensionSingle;
};
