#pragma once

#include "VXMBomInfrastructure/model/VXMIResourceBehaviorManager.h"
#include "VXMBomInfrastructure/nodes/VXMFabFlowNode.h"

/// Flow node of a resource with a behaviour: what is assigned to the behaviour counts as first assigned, and what it
/// puts out as output. There are no assigned and no removed products, and it never stands in a station.
class VXM_EXPORT VXMFabResourceFlowNode : public VXMFabFlowNode {
public:
    /// Reads the manager and its behaviour. With a null handle everything but the level stays empty.
    VXMFabResourceFlowNode(const VXMIResourceBehaviorManager_var& iManager, const int iLevel, const int iNumber,
                           const int iFastenersShowMode, const unsigned char iAssignedFastenersShowMode);
    ~VXMFabResourceFlowNode() override;

    unsigned char IsAResourceFlowNode() override;

    /// Fills the lists; the constructor calls it.
    void AssignProductsAndFasteners();

    /// Appends those of the behaviour's output items that are items to the output products.
    void CreateOutputAssignedProductsList(QORBaseUnknown_var iBehavior);
};
