#pragma once

#include "QORPlatform/framework/QORBaseUnknown.h"

/// Integer identity of a model object: one number per implementation, the same through whatever handle.
class QORModelIdentificator {
public:
    /// iImplementation is what GetImpl(0) gives.
    explicit QORModelIdentificator(QORBaseUnknown* iImplementation)
        : _id(iImplementation ? iImplementation->GetIdentity() : 0) {}

    /// From 1 on; 0 for null alone.
    int GetIntId() const { return _id; }

private:
    int _id;
};
