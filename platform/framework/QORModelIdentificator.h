#pragma once

#include "QORPlatform/framework/QORBaseUnknown.h"

/// Integer identity of a model object: one number per implementation, the same through whatever handle.
class QORModelIdentificator {
public:
    /// iImplementation is what GetImpl(0) gives, not null.
    explicit QORModelIdentificator(QORBaseUnknown* iImplementation) : _id(iImplementation->GetIdentity()) {}

    int GetIntId() const { return _id; }

private:
    int _id;
};
