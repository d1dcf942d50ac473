#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"

/// Flow among resources and behaviours. Both lists are new and the caller's to delete; null counts as none.
/// What holds for every operation of a model stands in VXMModel.h.
class VXMIResourceFlowMgmt : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("VXMIResourceFlowMgmt"); }

    /// The flow predecessors in the model's order, or null.
    virtual QORListValQORBaseUnknown_var* GetPredecessors() = 0;

    /// The flow successors in the model's order, or null.
    virtual QORListValQORBaseUnknown_var* GetSuccessors() = 0;
};

inline constexpr QORInterfaceID IID_VXMIResourceFlowMgmt = VXMIResourceFlowMgmt::InterfaceID();
using VXMIResourceFlowMgmt_var = QORVar<VXMIResourceFlowMgmt>;

template <class Impl>
class VXMIResourceFlowMgmtTie : public QORTie<VXMIResourceFlowMgmt, Impl> {
public:
    using QORTie<VXMIResourceFlowMgmt, Impl>::QORTie;

    QORListValQORBaseUnknown_var* GetPredecessors() override { return this->Target()->GetPredecessors(); }
    QORListValQORBaseUnknown_var* GetSuccessors() override { return this->Target()->GetSuccessors(); }
};
