#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"

/// An object that has a model type, with the types that this one derives from.
///
/// The library asks activities for these, spelt so: "BIWActivityLoading", "BIWActivityStation" and
/// "BIWActivityGrouping", in that order, to tell the kinds of step apart, where an activity of none of them is a plain
/// one; and the window asks for "PhysicalActivity" to find the root activity of a document. An object that doesn't
/// answer QORISpecObject is of none.
///
/// What holds for every operation of a model stands in VXMModel.h.
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
