#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/framework/QORTie.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"
#include "VXMBomInfrastructure/model/QORISPPItem.h"

/// Control flow through an activity or a logical node. Both views list the same links.
/// What holds for every operation of a model stands in VXMModel.h.
class QORISPPFlowMgt : public QORBaseUnknown {
public:
    static constexpr QORInterfaceID InterfaceID() { return QORInterfaceID("QORISPPFlowMgt"); }

    /// The flow predecessors of the type iType ("Activity"), empty if there is none, in the model's order.
    virtual QORListValQORBaseUnknown_var GetPredecessors(const QORUnicodeString& iType) = 0;

    /// The flow successors of the type iType ("Activity"), empty if there is none, in the model's order.
    virtual QORListValQORBaseUnknown_var GetSuccessors(const QORUnicodeString& iType) = 0;

    /// The output records, each of which answers QORISPPProductIO; empty if there is none. A null item asks for those
    /// of all products.
    virtual QORListValQORBaseUnknown_var GetProductOutputs(const QORISPPItem_var& iItem) = 0;
};

inline constexpr QORInterfaceID IID_QORISPPFlowMgt = QORISPPFlowMgt::InterfaceID();
using QORISPPFlowMgt_var = QORVar<QORISPPFlowMgt>;

template <class Impl>
class QORISPPFlowMgtTie : public QORTie<QORISPPFlowMgt, Impl> {
public:
    using QORTie<QORISPPFlowMgt, Impl>::QORTie;

    QORListValQORBaseUnknown_var GetPredecessors(const QORUnicodeString& iType) override {
        return this->Target()->GetPredecessors(iType);
    }
    QORListValQORBaseUnknown_var GetSuccessors(const QORUnicodeString& iType) override {
        return this->Target()->GetSuccessors(iType);
    }
    QORListValQORBaseUnknown_var GetProductOutputs(const QORISPPItem_var& iItem) override {
        return this->Target()->GetProductOutputs(iItem);
    }
};
