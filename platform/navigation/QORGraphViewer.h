#pragma once

#include "QORPlatform/text/QORExport.h"

class QORNavigBox;

/// The painted graph of a tree box, which owns it.
class QOR_EXPORT QORGraphViewer {
public:
    explicit QORGraphViewer(QORNavigBox& iBox) : _box(iBox) {}
    QORGraphViewer(const QORGraphViewer&) = delete;
    QORGraphViewer& operator=(const QORGraphViewer&) = delete;

    /// With 1 what a person sees stays where it is when the tree is filled anew; with 0 (at first) it begins at the
    /// top.
    void setAnchoredViewpoint(int iAnchored);
    bool isAnchoredViewpoint() const { return _anchored; }

private:
    QORNavigBox& _box;
    bool _anchored = false;
};
