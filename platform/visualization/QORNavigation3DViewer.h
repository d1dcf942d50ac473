#pragma once

#include "QORPlatform/visualization/QORViewer.h"

/// A viewer into space, with a main viewpoint from the beginning unless the toolkit can't show it.
class QOR_EXPORT QORNavigation3DViewer : public QORViewer {
public:
    /// Style and options are of the values in QORViewer.h; width and height in pixels.
    QORNavigation3DViewer(QORDialog* iParent, const QORString& iName, int iStyle, int iWidth, int iHeight,
                          int iOptions);
    ~QORNavigation3DViewer() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
};
