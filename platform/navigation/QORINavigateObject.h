#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/collections/QORListValQORUnicodeString.h"
#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

/// Answered by what can be shown in a tree. The navigator asks for the label when it makes or updates a node, and for
/// the children when a person opens it.
class QORINavigateObject : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORINavigateObject"); }

    /// A new list of texts, the first of which is the object's label. The receiver deletes it; null or empty leaves the
    /// object without a label.
    virtual QORListValQORUnicodeString* GetIdentificators() = 0;

    /// A new list of the objects below this one, in the order in which they are shown. The receiver deletes it; null or
    /// empty: there are none.
    virtual QORListValQORBaseUnknown_var* GetChildren() = 0;
};

inline constexpr QORInterfaceID IID_QORINavigateObject = QORINavigateObject::InterfaceID();
using QORINavigateObject_var = QORVar<QORINavigateObject>;

template <class Impl>
class QORINavigateObjectTie : public QORTie<QORINavigateObject, Impl> {
public:
    using QORTie<QORINavigateObject, Impl>::QORTie;

    QORListValQORUnicodeString* GetIdentificators() override { return this->Target()->GetIdentificators(); }
    QORListValQORBaseUnknown_var* GetChildren() override { return this->Target()->GetChildren(); }
};
