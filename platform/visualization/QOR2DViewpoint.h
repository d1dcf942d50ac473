#pragma once

#include "QORPlatform/visualization/QORViewpoint.h"

/// Looks at a plane, of a tree's graph say.
class QOR_EXPORT QOR2DViewpoint : public QORViewpoint {
public:
    QOR2DViewpoint();
    ~QOR2DViewpoint() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
};
