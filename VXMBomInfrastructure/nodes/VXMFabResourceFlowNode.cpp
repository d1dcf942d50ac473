#include "VXMBomInfrastructure/nodes/VXMFabResourceFlowNode.h"

#include "VXMBomInfrastructure/model/QORIProduct.h"
#include "VXMBomInfrastructure/model/QORISPPItem.h"
#include "VXMBomInfrastructure/model/VXMIResourceItemMgmt.h"
#include "VXMBomInfrastructure/nodes/VXMReadFlowNode.h"

#include <memory>

VXMFabResourceFlowNode::VXMFabResourceFlowNode(const VXMIResourceBehaviorManager_var& iManager, const int iLevel,
                                               const int iNumber, const int iFastenersShowMode,
                                               const unsigned char iAssignedFastenersShowMode)
    : VXMFabFlowNode(iFastenersShowMode, iAssignedFastenersShowMode) {
    _level = iLevel;
    if (!iManager) {
        return;
    }
    _activity = iManager;
    if (const QORIProduct_var product{_activity}) {
        _name = product->GetProductName();
    }
    _id = VXMIdentityOf(_activity);
    _number = iNumber;
    CheckActivityType();
    AssignProductsAndFasteners();
    VXMTraceNode(*this);
}

VXMFabResourceFlowNode::~VXMFabResourceFlowNode() = default;

void VXMFabResourceFlowNode::AssignProductsAndFasteners() {
    const VXMIResourceBehaviorManager_var manager(_activity);
    if (!manager) {
        return;
    }
    VXMIResourceBehavior_var behavior;
    manager->GetBehavior(behavior);
    if (!behavior) {
        return;
    }
    if (const VXMIResourceItemMgmt_var items{behavior}) {
        CreateFirstAssignedProductsList(items->GetAssignedItems());
        if (_fastenersShowMode > 0) {
            VXMTraceFastenersAreShown();
            CreateFastenerList(items->GetAssignedItems());
        }
    }
    CreateOutputAssignedProductsList(behavior);
}

void VXMFabResourceFlowNode::CreateOutputAssignedProductsList(QORBaseUnknown_var iBehavior) {
    const VXMIResourceItemMgmt_var items(iBehavior);
    if (!items) {
        return;
    }
    const std::unique_ptr<QORListValQORBaseUnknown_var> outputs(items->GetOutputItems());
    if (!outputs) {
        return;
    }
    for (const QORBaseUnknown_var& entry : *outputs) {
        if (QORISPPItem_var(entry)) {
            _cp.Append(entry);
        }
    }
}

unsigned char VXMFabResourceFlowNode::IsAResourceFlowNode() {
    return 1;
}
