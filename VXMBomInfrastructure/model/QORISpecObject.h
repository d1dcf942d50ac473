#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"

/// An object that has a model type, with the types that this one derives from.
class QORISpecObject : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORISpecObject"); }

    /// 1 when the object is of the named model type; any other value means that it isn't.
    virtual unsigned char IsOfType(const QORUnicodeString& iType) = 0;
};

inline constexpr QORInterfaceID IID_QORISpecObject = QORISpecObject::InterfaceID();
using QORISpecObject_var = QORVar<QORISpecObject>;

template <class Impl>
class QORISpecObjectTie : public QORTie<QORISpecObject, Impl> {
public:
    using QORTie<QORISpecObject, Impl>::QORTie;

    unsigned char IsOfType(const QORUnicodeString& iType) override { return this->Target()->IsOfType(iType); }
};
