#include "VXMBomInfrastructure/nodes/VXMFabFlowNode.h"

#include "QORPlatform/collections/QORFew.h"
#include "QORPlatform/framework/QORObjectCounts.h"
#include "VXMBomInfrastructure/VXMBomViewerTrace.h"
#include "VXMBomInfrastructure/index/VXMPool.h"
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

    QORFew<VXMFabFlowNode*> predecessors;
    QORFew<VXMFabFlowNode*> successors;

    static void* operator new(std::size_t) { return VXMPool<sizeof(Links)>::Get().Take(); }
    static void operator delete(void* iLinks) { VXMPool<sizeof(Links)>::Get().GiveBack(iLinks); }

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

VXMFabFlowNode* At(const QORFew<VXMFabFlowNode*>& iNodes, int iPosition) {
    const bool isThere = iPosition >= 1 && static_cast<std::size_t>(iPosition) <= iNodes.size();
    return isThere ? iNodes[static_cast<std::size_t>(iPosition) - 1] : nullptr;
}

} // namespace

VXMFabFlowNode::VXMFabFlowNode(const int iFastenersShowMode, const unsigned char iAssignedFastenersShowMode)
    : _fastenersShowMode(iFastenersShowMode), _assignedFastenersShowMode(iAssignedFastenersShowMode),
      _links(std::make_unique<Links>()) {}

VXMFabFlowNode::~VXMFabFlowNode() = default;

void VXMFabFlowNode::AddPredecessor(VXMFabFlowNode* iNode) {
    _links->predecessors.push_back(iNode);
}

void VXMFabFlowNode::AddSuccessor(VXMFabFlowNode* iNode) {
    _links->successors.push_back(iNode);
}

int VXMFabFlowNode::GetNumberOfPredecessors() const {
    return static_cast<int>(_links->predecessors.size());
}

int VXMFabFlowNode::GetNumberOfSuccessors() const {
    return static_cast<int>(_links->successors.size());
}

VXMFabFlowNode* VXMFabFlowNode::GetPredecessor(int iPosition) const {
    return At(_links->predecessors, iPosition);
}

VXMFabFlowNode* VXMFabFlowNode::GetSuccessor(int iPosition) const {
    return At(_links->successors, iPosition);
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
