#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"

/// Items of an activity.
/// What holds for every operation of a model stands in VXMModel.h.
class QORISPPItemMgt : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORISPPItemMgt"); }

    /// The items in a relation, a new list that the caller deletes, or null. iKind is "Item"; iRelation is 0 for every
    /// item of the activity, 1 for assigned, 2 for first assigned, 4 for removed ones.
    virtual QORListValQORBaseUnknown_var* GetItems(const QORUnicodeString& iKind, int iRelation) = 0;
};

inline constexpr QORInterfaceID IID_QORISPPItemMgt = QORISPPItemMgt::InterfaceID();
using QORISPPItemMgt_var = QORVar<QORISPPItemMgt>;

template <class Impl>
class QORISPPItemMgtTie : public QORTie<QORISPPItemMgt, Impl> {
public:
    using QORTie<QORISPPItemMgt, Impl>::QORTie;

    QORListValQORBaseUnknown_var* GetItems(const QORUnicodeString& iKind, int iRelation) override {
        return this->Target()->GetItems(iKind, iRelation);
    }
};
