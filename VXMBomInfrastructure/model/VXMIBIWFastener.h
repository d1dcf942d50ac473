#pragma once

#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"

/// A joining element: a weld, a rivet, a bead of glue.
/// What holds for every operation of a model stands in VXMModel.h.
class VXMIBIWFastener : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("VXMIBIWFastener"); }

    /// Process type, "Spot Weld" say; twelve of them can be shown.
    virtual QORUnicodeString GetProcessType() = 0;

    /// Non-zero when the fastener counts as assigned.
    virtual unsigned char IsAssigned() = 0;
};

inline constexpr QORInterfaceID IID_VXMIBIWFastener = VXMIBIWFastener::InterfaceID();
using VXMIBIWFastener_var = QORVar<VXMIBIWFastener>;

template <class Impl>
class VXMIBIWFastenerTie : public QORTie<VXMIBIWFastener, Impl> {
public:
    using QORTie<VXMIBIWFastener, Impl>::QORTie;

    QORUnicodeString GetProcessType() override { return this->Target()->GetProcessType(); }
    unsigned char IsAssigned() override { return this->Target()->IsAssigned(); }
};
