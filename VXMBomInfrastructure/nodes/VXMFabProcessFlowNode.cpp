#include "VXMBomInfrastructure/nodes/VXMFabProcessFlowNode.h"

#include "VXMBomInfrastructure/index/VXMStations.h"
#include "VXMBomInfrastructure/model/QORISPPFlowMgt.h"
#include "VXMBomInfrastructure/model/QORISPPItemMgt.h"
#include "VXMBomInfrastructure/model/QORISPPProductIO.h"
#include "VXMBomInfrastructure/nodes/VXMReadFlowNode.h"

namespace {

/// Relations of an activity to its items. A scale of their own, apart from the assignment types of the MBOM.
constexpr int kAllItems = 0;
constexpr int kAssigned = 1;
constexpr int kFirstAssigned = 2;
constexpr int kRemoved = 4;

} // namespace

VXMFabProcessFlowNode::VXMFabProcessFlowNode(const QORISPPAbstractActivity_var& iActivity, const int iLevel,
                                             const int iNumber, const int iFastenersShowMode,
                                             const unsigned char iAssignedFastenersShowMode)
    : VXMFabProcessFlowNode(iActivity, iLevel, iNumber, iFastenersShowMode, iAssignedFastenersShowMode, nullptr) {}

VXMFabProcessFlowNode::VXMFabProcessFlowNode(const QORISPPAbstractActivity_var& iActivity, const int iLevel,
                                             const int iNumber, const int iFastenersShowMode,
                                             const unsigned char iAssignedFastenersShowMode, VXMStations* ioStations)
    : VXMFabFlowNode(iFastenersShowMode, iAssignedFastenersShowMode) {
    _level = iLevel;
    if (!iActivity) {
        return;
    }
    _activity = iActivity;
    _abstractActivity = _activity;
    if (!_abstractActivity) {
        return;
    }
    _name = _abstractActivity->GetName();
    _id = VXMIdentityOf(_activity);
    _number = iNumber;
    CheckActivityType();
    QORISPPAbstractActivity_var parent = _abstractActivity->GetParent();
    _parentIsStation = ioStations ? (ioStations->IsInStation(parent) ? 1 : 0) : CheckParentIsStation(parent);
    AssignProductsAndFasteners();
    VXMTraceNode(*this);
}

VXMFabProcessFlowNode::~VXMFabProcessFlowNode() = default;

void VXMFabProcessFlowNode::AssignProductsAndFasteners() {
    static const QORUnicodeString kind("Item");
    if (const QORISPPItemMgt_var items{_activity}) {
        CreateFirstAssignedProductsList(items->GetItems(kind, kFirstAssigned));
        CreateAssignedProductsList(items->GetItems(kind, kAssigned));
        CreateRemovedProductsList(items->GetItems(kind, kRemoved));
        if (_fastenersShowMode > 0) {
            VXMTraceFastenersAreShown();
            CreateFastenerList(items->GetItems(kind, kAllItems));
        }
    }
    CreateOutputAssignedProductsList(_activity);
}

void VXMFabProcessFlowNode::CreateAssignedProductsList(QORListValQORBaseUnknown_var* iList) {
    VXMTakeOver(iList, _pp);
}

void VXMFabProcessFlowNode::CreateRemovedProductsList(QORListValQORBaseUnknown_var* iList) {
    VXMTakeOver(iList, _rp);
}

void VXMFabProcessFlowNode::CreateOutputAssignedProductsList(QORBaseUnknown_var iActivity) {
    const QORISPPFlowMgt_var flow(iActivity);
    if (!flow) {
        return;
    }
    const QORListValQORBaseUnknown_var records = flow->GetProductOutputs(QORISPPItem_var());
    for (const QORBaseUnknown_var& entry : records) {
        const QORISPPProductIO_var record(entry);
        if (!record) {
            continue;
        }
        if (QORBaseUnknown_var product = record->GetProduct()) {
            _cp.Append(std::move(product));
        }
    }
}

unsigned char VXMFabProcessFlowNode::IsAResourceFlowNode() {
    return 0;
}
