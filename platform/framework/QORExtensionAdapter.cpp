#include "QORPlatform/framework/QORExtensionAdapter.h"

QORExtensionAdapter::QORExtensionAdapter() = default;

QORExtensionAdapter::~QORExtensionAdapter() = default;

int QORExtensionAdapter::AddRef() {
    return _extended ? _extended->AddRef() : QORBaseUnknown::AddRef();
}

int QORExtensionAdapter::Release() {
    return _extended ? _extended->Release() : QORBaseUnknown::Release();
}

QORStatus QORExtensionAdapter::QueryInterface(const QORInterfaceID& iInterface, void** oInterface) {
    return _extended ? _extended->QueryInterface(iInterface, oInterface)
                     : QORBaseUnknown::QueryInterface(iInterface, oInterface);
}

QORBaseUnknown* QORExtensionAdapter::GetImpl(int iLevel) {
    return _extended ? _extended->GetImpl(iLevel) : this;
}
