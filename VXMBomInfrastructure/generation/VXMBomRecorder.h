#pragma once

#include "VXMBomInfrastructure/VXMExport.h"
#include "VXMBomInfrastructure/nodes/VXMFabFlowNode.h"
#include "VXMBomInfrastructure/nodes/VXMFabMBOMNode.h"

/// Hears from a generator how a bill comes about: which nodes are made, which of them the passes take out and why, and
/// which are shown. VXMBomGenerator::SetRecorder says who listens; without a recorder a computation does nothing for
/// it.
///
/// All calls come from within GetBom. Nodes are the generator's: copy what is needed, and use their addresses as keys
/// only. An exception passes through GetBom like one of the model.
class VXM_EXPORT VXMBomRecorder {
public:
    /// Why a node goes. What the partner is to it stands behind.
    enum Reason {
        R_Paired = 1,            ///< a removal and an assignment of one product went together: the other of the two
        R_AssignedOtherwise = 2, ///< a process assignment had another assignment of the product beside it: that one
        R_Repeat = 3,            ///< the product was met before: the node that was met
        R_BelowRepeat = 4        ///< it stood below a node that went with all below it: its own parent
    };

    VXMBomRecorder();
    virtual ~VXMBomRecorder();
    VXMBomRecorder(const VXMBomRecorder&) = delete;
    VXMBomRecorder& operator=(const VXMBomRecorder&) = delete;

    /// 1 to hear of every node, as by default: steps on many paths are taken once per path, as for a trace. 0 to hear
    /// of those alone that a computation makes without a recorder: what decides the bill.
    virtual unsigned char WantsEveryNode();

    /// A computation begins; what came before counts no more.
    virtual void Begin() = 0;

    /// A node was made and stands in the tree: for an entry of a list of iStep, or, with a null step, for a part of the
    /// product of its predecessor.
    virtual void NodeMade(const VXMFabMBOMNode& iNode, const VXMFabFlowNode* iStep) = 0;

    /// A node goes; it stands in the tree still. The partner does as well, or has been told of in the same breath.
    virtual void NodeGoes(const VXMFabMBOMNode& iNode, Reason iReason, const VXMFabMBOMNode& iPartner) = 0;

    /// A node got its element. Elements come in the order of the document, each before those below it.
    virtual void NodeShown(const VXMFabMBOMNode& iNode) = 0;
};
