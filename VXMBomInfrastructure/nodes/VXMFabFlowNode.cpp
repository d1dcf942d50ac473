#include "VXMBomInfrastructure/nodes/VXMFabFlowNode.h"

#include "QORPlatform/framework/QORModelIdentificator.h"
#include "VXMBomInfrastructure/VXMBomViewerTrace.h"
#include "VXMBomInfrastructure/model/QORISPPItem.h"
#include "VXMBomInfrastructure/model/QORISpecObject.h"
#include "VXMBomInfrastructure/model/VXMIBIWFastener.h"
#include "VXMBomInfrastructure/nodes/VXMFastenerTypes.h"
#include "VXMBomInfrastructure/nodes/VXMStationMemo.h"

#include <algorithm>
#include <memory>

namespace {

const VXMFabFlowNode::FastenerTypeNames& FastenerTypeTable() {
    static const VXMFabFlowNode::FastenerTypeNames names = [] {
        VXMFabFlowNode::FastenerTypeNames result;
        std::transform(VXMFastenerTypes.begin(), VXMFastenerTypes.end(), result.begin(),
                       [](const VXMFastenerType& iType) { return QORUnicodeString(iType.name); });
        return result;
    }();
    return names;
}

} // namespace

VXMFabFlowNode::VXMFabFlowNode(const int iFastenersShowMode, const unsigned char iAssignedFastenersShowMode)
    : _fastenersShowMode(iFastenersShowMode), _assignedFastenersShowMode(iAssignedFastenersShowMode),
      _fastenerTypeNames(FastenerTypeTable()) {}

VXMFabFlowNode::~VXMFabFlowNode() = default;

void VXMFabFlowNode::AddPredecessor(VXMFabFlowNode* iNode) {
    _predecessors.Append(iNode);
}

void VXMFabFlowNode::AddSuccessor(VXMFabFlowNode* iNode) {
    _successors.Append(iNode);
}

VXMFabFlowNode* VXMFabFlowNode::GetPredecessor(int iPosition) const {
    return static_cast<VXMFabFlowNode*>(_predecessors[iPosition]);
}

VXMFabFlowNode* VXMFabFlowNode::GetSuccessor(int iPosition) const {
    return static_cast<VXMFabFlowNode*>(_successors[iPosition]);
}

QORUnicodeString VXMFabFlowNode::GetIDString() const {
    QORUnicodeString text;
    text.BuildFromNum(_id, "%d");
    return text;
}

void VXMFabFlowNode::CheckActivityType() {
    static const std::array<std::pair<QORUnicodeString, NodeType>, 3> types{
        {{"BIWActivityLoading", NT_LOADING}, {"BIWActivityStation", NT_STATION}, {"BIWActivityGrouping", NT_GROUPING}}};
    const QORISpecObject_var typed(_activity);
    if (!typed) {
        return;
    }
    for (const auto& [name, type] : types) {
        if (typed->IsOfType(name) == 1) {
            _nodeType = type;
            return;
        }
    }
}

unsigned char VXMFabFlowNode::CheckParentIsStation(QORISPPAbstractActivity_var& iActivity) {
    return VXMStationMemo().IsInStation(iActivity) ? 1 : 0;
}

void VXMFabFlowNode::AppendAll(QORListValQORBaseUnknown_var* iList, QORListValQORBaseUnknown_var& oTarget) {
    const std::unique_ptr<QORListValQORBaseUnknown_var> list(iList);
    if (!list) {
        return;
    }
    for (const QORBaseUnknown_var& entry : *list) {
        oTarget.Append(entry);
    }
}

void VXMFabFlowNode::CreateFirstAssignedProductsList(QORListValQORBaseUnknown_var* iList) {
    AppendAll(iList, _fap);
}

void VXMFabFlowNode::CreateFastenerList(QORListValQORBaseUnknown_var* iList) {
    const std::unique_ptr<QORListValQORBaseUnknown_var> list(iList);
    if (!list) {
        return;
    }
    for (const QORBaseUnknown_var& entry : *list) {
        const VXMIBIWFastener_var fastener(entry);
        if (!fastener || !QORISPPItem_var(entry)) {
            continue;
        }
        const QORUnicodeString processType = fastener->GetProcessType();
        VXMBomViewerTrace.TraPutLN("processType of weld: ");
        VXMBomViewerTrace.TraPutLN(processType);
        if (fastener->IsAssigned() == 0 && _assignedFastenersShowMode == 1) {
            continue;
        }
        if (IsShown(processType)) {
            _fasteners.Append(entry);
        }
    }
}

bool VXMFabFlowNode::IsShown(const QORUnicodeString& iProcessType) const {
    int bit = 1;
    for (const QORUnicodeString& name : _fastenerTypeNames) {
        if ((_fastenersShowMode & bit) != 0 && iProcessType.Compare(name) != 0) {
            return true;
        }
        bit <<= 1;
    }
    return false;
}

void VXMFabFlowNode::ReadIdentity() {
    _id = QORModelIdentificator(_activity->GetImpl(0)).GetIntId();
}

void VXMFabFlowNode::TraceFastenersAreShown() const {
    VXMBomViewerTrace.TraPutLN("FAB_BOM_NO_FASTENERS is NOT set to TRUE: fasteners are displayed in MBOM");
}

void VXMFabFlowNode::TraceNode() const {
    VXMBomViewerTrace.TraPutX("Number: ", _number);
    VXMBomViewerTrace.TraPutX("ID: ", _id);
    VXMBomViewerTrace.TraPut("Name ");
    VXMBomViewerTrace.TraPutLN(_name);
}
