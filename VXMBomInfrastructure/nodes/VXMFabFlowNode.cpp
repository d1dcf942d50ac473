#include "VXMBomInfrastructure/nodes/VXMFabFlowNode.h"

#include "QORPlatform/collections/QORRawCollPV.h"
#include "QORPlatform/framework/QORObjectCounts.h"
#include "VXMBomInfrastructure/VXMBomViewerTrace.h"
#include "VXMBomInfrastructure/index/VXMStations.h"
#include "VXMBomInfrastructure/model/QORISPPItem.h"
#include "VXMBomInfrastructure/model/QORISpecObject.h"
#include "VXMBomInfrastructure/model/VXMIBIWFastener.h"
#include "VXMBomInfrastructure/nodes/VXMFastenerTypes.h"
#include "VXMBomInfrastructure/nodes/VXMReadFlowNode.h"

#include <array>
#include <memory>

/// The neighbours, which alone change after construction.
class VXM_HIDDEN VXMFabFlowNode::Links : private QORCounted<Links> {
public:
    static constexpr std::string_view kCountName = "VXMFabFlowNode";

    QORRawCollPV predecessors;
    QORRawCollPV successors;

private:
    friend class QORCounted<Links>;
};

namespace {

bool IsShown(const QORUnicodeString& iProcessType, int iFastenersShowMode) {
    int bit = 1;
    for (const VXMFastenerType& type : VXMFastenerTypes) {
        if ((iFastenersShowMode & bit) != 0 && iProcessType.Compare(type.name) != 0) {
            return true;
        }
        bit <<= 1;
    }
    return false;
}

} // namespace

VXMFabFlowNode::VXMFabFlowNode(const int iFastenersShowMode, const unsigned char iAssignedFastenersShowMode)
    : _fastenersShowMode(iFastenersShowMode), _assignedFastenersShowMode(iAssignedFastenersShowMode),
      _links(std::make_unique<Links>()) {}

VXMFabFlowNode::~VXMFabFlowNode() = default;

void VXMFabFlowNode::AddPredecessor(VXMFabFlowNode* iNode) {
    _links->predecessors.Append(iNode);
}

void VXMFabFlowNode::AddSuccessor(VXMFabFlowNode* iNode) {
    _links->successors.Append(iNode);
}

int VXMFabFlowNode::GetNumberOfPredecessors() const {
    return _links->predecessors.Size();
}

int VXMFabFlowNode::GetNumberOfSuccessors() const {
    return _links->successors.Size();
}

VXMFabFlowNode* VXMFabFlowNode::GetPredecessor(int iPosition) const {
    return static_cast<VXMFabFlowNode*>(_links->predecessors[iPosition]);
}

VXMFabFlowNode* VXMFabFlowNode::GetSuccessor(int iPosition) const {
    return static_cast<VXMFabFlowNode*>(_links->successors[iPosition]);
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
    return VXMStations::Climb(iActivity) ? 1 : 0;
}

void VXMFabFlowNode::CreateFirstAssignedProductsList(QORListValQORBaseUnknown_var* iList) {
    VXMTakeOver(iList, _fap);
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
        if (IsShown(processType, _fastenersShowMode)) {
            _fasteners.Append(entry);
        }
    }
}
