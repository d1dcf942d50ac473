// From the flow graph to the raw MBOM.
//
// Both builds walk the graph backwards from the end of the flow, each path to its very start, and make one node per
// entry of each list that counts, in the order of kVXMFlowLists. The present build puts them all under the top node;
// the older one opens a level with the first output product of a step, under which the rest of the step and all that
// comes before it go. A flow node that is on the present path isn't entered again, so that loops end. The number runs
// along each path by itself and starts anew at each predecessor.

#include "VXMBomInfrastructure/VXMBomViewerTrace.h"
#include "VXMBomInfrastructure/generation/VXMBackwardPath.h"
#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"
#include "VXMBomInfrastructure/generation/VXMFlowLists.h"
#include "VXMBomInfrastructure/generation/VXMFruitfulSteps.h"
#include "VXMBomInfrastructure/generation/VXMStructureExpansion.h"

#include <algorithm>
#include <memory>
#include <optional>

unsigned char VXMBomGenerator::UseProducts(VXMFabFlowNode* iFlowNode, AssignmentType iType) {
    if (!iFlowNode) {
        return 0;
    }
    if (iFlowNode->ParentIsStation() == 0) {
        return 1;
    }
    return iType == VXMFabMBOMNode::AT_FirstAssign && iFlowNode->GetNodeType() == VXMFabFlowNode::NT_LOADING ? 1 : 0;
}

VXMFabMBOMNode* VXMBomGenerator::AttachNode(const QORBaseUnknown_var& iProduct, int iLevel, int iNumber,
                                            AssignmentType iType, unsigned char iRemovable, VXMFabMBOMNode* iParent) {
    auto made = std::make_unique<VXMFabMBOMNode>(iProduct, iLevel, iNumber, iType, iRemovable);
    AddMBOMNodeToList(made.get());
    VXMFabMBOMNode* const node = made.release();
    iParent->AddSuccessor(node);
    node->SetPredecessor(iParent);
    return node;
}

/// Calls iTakeStep(flow node, parent, number) for each step, from the end of the flow backwards, once per path; it may
/// change parent and number for the steps before. iMark goes to the trace for each call.
template <class TakeStep>
void VXMBomGenerator::WalkBackwards(const char* iMark, VXMFabFlowNode* iFlowNode, VXMFabMBOMNode* iParent, int iNumber,
                                    TakeStep iTakeStep) {
    VXMBackwardPath path;
    const auto enter = [&](VXMFabFlowNode* iStep, VXMFabMBOMNode* iUnder, int iFrom) {
        VXMBomViewerTrace.TraPutLN(iMark);
        if (!iStep || !iUnder) {
            return;
        }
        iTakeStep(*iStep, iUnder, iFrom);
        path.Enter({.node = iStep, .parent = iUnder, .number = iFrom});
    };
    // A trace shows every call, so nothing is passed over then.
    std::optional<VXMFruitfulSteps> fruitful;
    if (!VXMBomViewerTrace.IsActive()) {
        fruitful.emplace(iFlowNode, [this](VXMFabFlowNode* iStep) {
            return std::any_of(kVXMFlowLists.begin(), kVXMFlowLists.end(), [&](const VXMFlowList& iList) {
                return (iStep->*iList.count)() > 0 && UseProducts(iStep, iList.type) != 0;
            });
        });
    }
    enter(iFlowNode, iParent, iNumber);
    while (!path.IsEmpty()) {
        VXMBackwardPath::Frame& frame = path.Top();
        if (frame.nextPredecessor > frame.node->GetNumberOfPredecessors()) {
            path.Leave();
            continue;
        }
        VXMFabFlowNode* const before = frame.node->GetPredecessor(frame.nextPredecessor++);
        if (!VXMBackwardPath::Holds(before) && !(fruitful && fruitful->MayPassOver(before))) {
            enter(before, frame.parent, frame.number);
        }
    }
}

void VXMBomGenerator::CreateMBOM(VXMFabFlowNode* iFlowNode, VXMFabMBOMNode* iParent, int iNumber) {
    const auto takeStep = [this](VXMFabFlowNode& iStep, VXMFabMBOMNode*& ioParent, int& ioNumber) {
        const int level = ioParent->GetLevel() + 1;
        for (const VXMFlowList& list : kVXMFlowLists) {
            VXMFabMBOMNode* const under = list.type == VXMFabMBOMNode::AT_Create ? GetTopNode() : ioParent;
            if (!under || UseProducts(&iStep, list.type) == 0) {
                continue;
            }
            const int count = (iStep.*list.count)();
            for (int position = 1; position <= count; ++position) {
                VXMFabMBOMNode* const node =
                    AttachNode((iStep.*list.entry)(position), level, ioNumber++, list.type, 1, under);
                if (list.type != VXMFabMBOMNode::AT_Fastener) {
                    ioNumber = CreateProductChildren(node, level, ioNumber, QORListValQORBaseUnknown_var());
                }
            }
        }
    };
    WalkBackwards("--> VXMBomGenerator::CreateMBOM ", iFlowNode, iParent, iNumber, takeStep);
}

void VXMBomGenerator::CreateOldMBOM(VXMFabFlowNode* iFlowNode, VXMFabMBOMNode* iParent, int iNumber) {
    const auto takeStep = [this](VXMFabFlowNode& iStep, VXMFabMBOMNode*& ioParent, int& ioNumber) {
        VXMFabMBOMNode* const parent = ioParent;
        const int level = parent->GetLevel() + 1;
        for (const VXMFlowList& list : kVXMFlowLists) {
            if (UseProducts(&iStep, list.type) == 0) {
                continue;
            }
            const bool isOutput = list.type == VXMFabMBOMNode::AT_Create;
            const int count = (iStep.*list.count)();
            for (int position = 1; position <= count; ++position) {
                VXMFabMBOMNode* const node = AttachNode((iStep.*list.entry)(position), level, ioNumber++, list.type, 1,
                                                        isOutput ? parent : ioParent);
                if (isOutput && position == 1) {
                    ioParent = node;
                }
                if (list.type != VXMFabMBOMNode::AT_Fastener) {
                    ioNumber = CreateOldMAChildren(node, level, ioNumber);
                }
            }
        }
    };
    WalkBackwards("--> VXMBomGenerator::CreateOldMBOM ", iFlowNode, iParent, iNumber, takeStep);
}

int VXMBomGenerator::CreateProductChildren(VXMFabMBOMNode* iNode, int iLevel, int iNumber,
                                           QORListValQORBaseUnknown_var iPath) {
    VXMStructureExpansion expansion(*this, VXMStructureExpansion::Kind::AssembliesAndProducts);
    for (const QORBaseUnknown_var& object : iPath) {
        expansion.EnterPath(object);
    }
    return expansion.Expand(iNode, iLevel, iNumber);
}

int VXMBomGenerator::CreateOldMAChildren(VXMFabMBOMNode* iNode, int iLevel, int iNumber) {
    return VXMStructureExpansion(*this, VXMStructureExpansion::Kind::AssembliesOnly).Expand(iNode, iLevel, iNumber);
}
