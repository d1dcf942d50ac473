#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

/// Items of a behaviour. Each call gives a new list that the caller deletes, or null.
/// What holds for every operation of a model stands in VXMModel.h.
class VXMIResourceItemMgmt : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("VXMIResourceItemMgmt"); }

    /// What the behaviour works with, of whatever sort.
    virtual QORListValQORBaseUnknown_var* GetAssignedItems() = 0;

    /// Items that the behaviour puts out.
    virtual QORListValQORBaseUnknown_var* GetOutputItems() = 0;
};

inline constexpr QORInterfaceID IID_VXMIResourceItemMgmt = VXMIResourceItemMgmt::InterfaceID();
using VXMIResourceItemMgmt_var = QORVar<VXMIResourceItemMgmt>;

template <class Impl>
class VXMIResourceItemMgmtTie : public QORTie<VXMIResourceItemMgmt, Impl> {
public:
    using QORTie<VXMIResourceItemMgmt, Impl>::QORTie;

    QORListValQORBaseUnknown_var* GetAssignedItems() override { return this->Target()->GetAssignedItems(); }
    QORListValQORBaseUnknown_var* GetOutputItems() override { return this->Target()->GetOutputItems(); }
};
