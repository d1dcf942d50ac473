#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/collections/QORListValQORUnicodeString.h"
#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

/// The same for objects of products, processes and resources. The navigator asks it of those that don't answer
/// QORINavigateObject.
class QORINavigateObjectPPR : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORINavigateObjectPPR"); }

    /// A new list of texts, the first of which is the object's label. The receiver deletes it; null or empty leaves the
    /// object without a label.
    virtual QORListValQORUnicodeString* GetIdentificators() = 0;

    /// A new list of the objects below this one, in the order in which they are shown. The receiver deletes it; null or
    /// empty: there are none.
    virtual QORListValQORBaseUnknown_var* GetChildren() = 0;
};

inline constexpr QORInterfaceID IID_QORINavigateObjectPPR = QORINavigateObjectPPR::InterfaceID();
using QORINavigateObjectPPR_var = QORVar<QORINavigateObjectPPR>;

template <class Impl>
class QORINavigateObjectPPRTie : public QORTie<QORINavigateObjectPPR, Impl> {
public:
    using QORTie<QORINavigateObjectPPR, Impl>::QORTie;

    QORListValQORUnicodeString* GetIdentificators() override { return this->Target()->GetIdentificators(); }
    QORListValQORBaseUnknown_var* GetChildren() override { return this->Target()->GetChildren(); }
};
