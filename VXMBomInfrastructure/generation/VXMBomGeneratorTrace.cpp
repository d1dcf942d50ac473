// Dumps of the flow graph and of the MBOM tree. None of them costs anything while the trace is off.

#include "VXMBomInfrastructure/VXMBomViewerTrace.h"
#include "VXMBomInfrastructure/generation/VXMBomGeneratorState.h"

namespace {

constexpr int kLastTypeListed = VXMFabMBOMNode::AT_Create; // fasteners aren't listed

template <class Visit>
void ForEachNode(const VXMPlaces& iNodes, Visit iVisit) {
    for (int position = 1; position <= iNodes.Size(); ++position) {
        iVisit(*iNodes[position]);
    }
}

using Count = int (VXMFabFlowNode::*)() const;
using Neighbour = VXMFabFlowNode* (VXMFabFlowNode::*)(int iPosition) const;

/// "P1: 2" for each neighbour of the per-node dump.
void PutNumbered(const VXMFabFlowNode& iNode, Count iCount, Neighbour iNeighbour, const char* iLabel) {
    for (int position = 1; position <= (iNode.*iCount)(); ++position) {
        if (const VXMFabFlowNode* const neighbour = (iNode.*iNeighbour)(position)) {
            VXMBomViewerTrace.TraPutX(iLabel, position);
            VXMBomViewerTrace.TraPutX(": ", neighbour->GetNumber());
        }
    }
}

/// " P 2 3" for all neighbours of the flow links.
void PutListed(const VXMFabFlowNode& iNode, Count iCount, Neighbour iNeighbour, const char* iLabel) {
    if ((iNode.*iCount)() == 0) {
        return;
    }
    VXMBomViewerTrace.TraPut(iLabel);
    for (int position = 1; position <= (iNode.*iCount)(); ++position) {
        if (const VXMFabFlowNode* const neighbour = (iNode.*iNeighbour)(position)) {
            VXMBomViewerTrace.TraPutX(" ", neighbour->GetNumber());
        }
    }
}

void PutTypeHeading(int iType) {
    VXMBomViewerTrace.TraPutX("--- ", iType);
    VXMBomViewerTrace.TraPutLN("--- ");
}

void PutLinks(const VXMFabMBOMNode& iNode) {
    VXMBomViewerTrace.TraPutX("N ", iNode.GetNumber());
    if (iNode.GetPredecessor()) {
        VXMBomViewerTrace.TraPutX(" P ", iNode.GetPredecessor()->GetNumber());
    }
    for (int position = 1; position <= iNode.GetNumberOfSuccessors(); ++position) {
        VXMBomViewerTrace.TraPutX(" S ", iNode.GetSuccessor(position)->GetNumber());
    }
    VXMBomViewerTrace.TraPutLN(" *");
}

} // namespace

void VXMBomGenerator::State::TraceFlowNodes() const {
    if (!VXMBomViewerTrace.IsActive()) {
        return;
    }
    for (const void* entry : computation->graph.GetNodes()) {
        if (const auto* const node = static_cast<const VXMFabFlowNode*>(entry)) {
            VXMBomViewerTrace.TraPutX("Number ", node->GetNumber());
            PutNumbered(*node, &VXMFabFlowNode::GetNumberOfPredecessors, &VXMFabFlowNode::GetPredecessor, "P");
            PutNumbered(*node, &VXMFabFlowNode::GetNumberOfSuccessors, &VXMFabFlowNode::GetSuccessor, "S");
            VXMBomViewerTrace.TraPutLN(" *");
        }
    }
}

void VXMBomGenerator::TraceFlow() {
    if (!VXMBomViewerTrace.IsActive()) {
        return;
    }
    const std::vector<VXMFabFlowNode*>& nodes = _state->computation->graph.GetEntered();
    for (const VXMFabFlowNode* node : nodes) {
        VXMBomViewerTrace.TraPut("Number: ");
        VXMBomViewerTrace.TraPutX("", node->GetNumber());
        VXMBomViewerTrace.TraPut(" Name: ");
        VXMBomViewerTrace.TraPutLN(node->GetName());
    }
    VXMBomViewerTrace.TraPutLN("Flow: Node Number (N), Predecessor (P) und Successors (S)");
    for (const VXMFabFlowNode* node : nodes) {
        VXMBomViewerTrace.TraPut("N: ");
        VXMBomViewerTrace.TraPutX("", node->GetNumber());
        PutListed(*node, &VXMFabFlowNode::GetNumberOfPredecessors, &VXMFabFlowNode::GetPredecessor, " P ");
        PutListed(*node, &VXMFabFlowNode::GetNumberOfSuccessors, &VXMFabFlowNode::GetSuccessor, " S ");
        VXMBomViewerTrace.TraPutLN(" *");
    }
}

void VXMBomGenerator::TraceMBOM1() {
    if (!VXMBomViewerTrace.IsActive()) {
        return;
    }
    VXMBomViewerTrace.TraPutLN("--- TRACE 1 ---");
    for (int type = VXMFabMBOMNode::AT_Top; type <= kLastTypeListed; ++type) {
        PutTypeHeading(type);
        ForEachNode(_state->computation->tree.GetNodes(AssignmentType(type)), [](const VXMFabMBOMNode& iNode) {
            VXMBomViewerTrace.TraPutX("N ", iNode.GetNumber());
            VXMBomViewerTrace.TraPut(" ");
            VXMBomViewerTrace.TraPutLN(iNode.GetName());
        });
    }
}

void VXMBomGenerator::TraceMBOM2() {
    if (!VXMBomViewerTrace.IsActive()) {
        return;
    }
    VXMBomViewerTrace.TraPutLN("--- TRACE 2 ---\n");
    for (int type = VXMFabMBOMNode::AT_Top; type <= kLastTypeListed; ++type) {
        PutTypeHeading(type);
        ForEachNode(_state->computation->tree.GetNodes(AssignmentType(type)), PutLinks);
    }
}
