#include "VXMBomInfrastructure/generation/VXMFlowGraph.h"

#include "VXMBomInfrastructure/nodes/VXMFabFlowNode.h"

VXMFlowGraph::~VXMFlowGraph() {
    Free();
}

void VXMFlowGraph::Enter(VXMFabFlowNode* iNode) {
    if (!iNode || _byID.Get(iNode->GetID())) {
        return;
    }
    _entered.push_back(iNode);
    _byID[iNode->GetID()] = iNode;
}

void VXMFlowGraph::Free() {
    for (void* node : _nodes) {
        delete static_cast<VXMFabFlowNode*>(node);
    }
    _nodes.RemoveAll();
    _byID.RemoveAll();
    _entered.clear();
    _first = nullptr;
}
