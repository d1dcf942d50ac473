#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"

/// A manufacturing assembly: an item that lists what it holds.
/// What holds for every operation of a model stands in VXMModel.h.
class VXMIMfgAssembly : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("VXMIMfgAssembly"); }

    /// Name of the assembly as a person reads it.
    virtual QORUnicodeString GetName() = 0;

    /// Sets oProducts to a new list of what the assembly holds, which the caller deletes, or leaves it alone. The
    /// result isn't looked at.
    virtual QORStatus GetAssignedProducts(QORListValQORBaseUnknown_var*& oProducts) = 0;
};

inline constexpr QORInterfaceID IID_VXMIMfgAssembly = VXMIMfgAssembly::InterfaceID();
using VXMIMfgAssembly_var = QORVar<VXMIMfgAssembly>;

template <class Impl>
class VXMIMfgAssemblyTie : public QORTie<VXMIMfgAssembly, Impl> {
public:
    using QORTie<VXMIMfgAssembly, Impl>::QORTie;

    QORUnicodeString GetName() override { return this->Target()->GetName(); }
    QORStatus GetAssignedProducts(QORListValQORBaseUnknown_var*& oProducts) override {
        return this->Target()->GetAssignedProducts(oProducts);
    }
};
