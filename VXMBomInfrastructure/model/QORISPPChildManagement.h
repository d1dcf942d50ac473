#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"

/// Containment in the process plan.
/// What holds for every operation of a model stands in VXMModel.h.
class QORISPPChildManagement : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORISPPChildManagement"); }

    /// The direct children in the model's order, a new list that the caller deletes, or null. iType filters by type; an
    /// empty text means children of every type.
    virtual QORListValQORBaseUnknown_var* GetChildren(const QORUnicodeString& iType) = 0;
};

inline constexpr QORInterfaceID IID_QORISPPChildManagement = QORISPPChildManagement::InterfaceID();
using QORISPPChildManagement_var = QORVar<QORISPPChildManagement>;

template <class Impl>
class QORISPPChildManagementTie : public QORTie<QORISPPChildManagement, Impl> {
public:
    using QORTie<QORISPPChildManagement, Impl>::QORTie;

    QORListValQORBaseUnknown_var* GetChildren(const QORUnicodeString& iType) override {
        return this->Target()->GetChildren(iType);
    }
};
