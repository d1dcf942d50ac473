#pragma once

#include "QORPlatform/framework/QORBaseUnknown.h"

/// Base of extensions: objects that add interfaces to an object of another type. The extended object makes an extension
/// when one of its interfaces is first asked for, keeps it and ends it; counting and identity are the extended
/// object's.
class QOR_EXPORT QORExtensionAdapter : public QORBaseUnknown {
public:
    QORExtensionAdapter();
    ~QORExtensionAdapter() override;

    int AddRef() override;
    int Release() override;
    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override;

    /// With 0 the extended object, or this one as long as it extends nothing.
    QORBaseUnknown* GetImpl(int iLevel) override;

    /// Ties the extension to the object that it extends, which keeps it.
    void Extend(QORBaseUnknown* iObject) { _extended = iObject; }

private:
    QORBaseUnknown* _extended = nullptr;
};
