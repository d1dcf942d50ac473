#pragma once

#include "QORPlatform/visualization/QORViewer.h"

/// A viewer onto a plane. Has no viewpoint before one is added.
class QOR_EXPORT QORNavigation2DViewer : public QORViewer {
public:
    /// Style and options are of the values in QORViewer.h; width and height in pixels.
    QORNavigation2DViewer(QORDialog* iParent, const QORString& iName, int iStyle, int iWidth, int iHeight,
                          int iOptions);
    ~QORNavigation2DViewer() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
};
