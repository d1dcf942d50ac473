#include "VXMBomInfrastructure/nodes/VXMReadFlowNode.h"

#include "QORPlatform/framework/QORModelIdentificator.h"
#include "VXMBomInfrastructure/VXMBomViewerTrace.h"
#include "VXMBomInfrastructure/nodes/VXMFabFlowNode.h"

#include <memory>
#include <utility>

void VXMTakeOver(QORListValQORBaseUnknown_var* iList, QORListValQORBaseUnknown_var& oTarget) {
    const std::unique_ptr<QORListValQORBaseUnknown_var> list(iList);
    if (!list) {
        return;
    }
    if (oTarget.Size() == 0) {
        oTarget = std::move(*list);
        return;
    }
    for (const QORBaseUnknown_var& entry : *list) {
        oTarget.Append(entry);
    }
}

int VXMIdentityOf(const QORBaseUnknown_var& iObject) {
    return QORModelIdentificator(iObject->GetImpl(0)).GetIntId();
}

void VXMTraceFastenersAreShown() {
    VXMBomViewerTrace.TraPutLN("FAB_BOM_NO_FASTENERS is NOT set to TRUE: fasteners are displayed in MBOM");
}

void VXMTraceNode(const VXMFabFlowNode& iNode) {
    if (VXMBomViewerTrace.IsActive()) {
        VXMBomViewerTrace.TraPutX("Number: ", iNode.GetNumber());
        VXMBomViewerTrace.TraPutX("ID: ", iNode.GetID());
        VXMBomViewerTrace.TraPut("Name ");
        VXMBomViewerTrace.TraPutLN(iNode.GetUName());
    }
}
