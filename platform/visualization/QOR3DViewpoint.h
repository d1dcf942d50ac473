#pragma once

#include "QORPlatform/visualization/QORViewpoint.h"

/// Looks at a scene in space.
class QOR_EXPORT QOR3DViewpoint : public QORViewpoint {
public:
    QOR3DViewpoint();
    ~QOR3DViewpoint() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;
};
