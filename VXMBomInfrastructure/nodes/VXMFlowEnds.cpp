// Ends of flows.
//
// First successors make a forest whose trees grow at their roots; a root that gets a successor inside its own tree
// closes a loop. Each node keeps a pointer to some node further along (`further`), which searches push on towards the
// root, so that a search takes few steps. A search that meets a node twice has found a loop: its nodes are marked once
// with their neighbour before them, and from then on a search in that tree asks for the place where it enters the loop,
// which every node remembers (`loopEntry`).

#include "VXMBomInfrastructure/nodes/VXMFlowEnds.h"

#include "VXMBomInfrastructure/nodes/VXMFabFlowNode.h"

#include <cstdint>
#include <vector>

VXMFabFlowNode* VXMFlowEnds::First(const VXMFabFlowNode& iNode) {
    return iNode.GetSuccessor(1);
}

VXMFabFlowNode* VXMFlowEnds::Find(VXMFabFlowNode* iNode) {
    if (!iNode || iNode->GetNumberOfSuccessors() == 0) {
        return iNode;
    }
    VXMFabFlowNode* const reached = RunAhead(*iNode);
    if (reached->_flowEnd.loopEntry) {
        return FindLoopEntry(*iNode)->_flowEnd.beforeOnLoop;
    }
    Shorten(*iNode, *reached);
    // A root with a successor has a null one: the flow ends there in nothing.
    return reached->GetNumberOfSuccessors() == 0 ? reached : nullptr;
}

/// Runs to the root of the node's tree, or to a node that knows its way into a loop.
VXMFabFlowNode* VXMFlowEnds::RunAhead(VXMFabFlowNode& iNode) {
    static std::uint64_t search = 0;
    ++search;
    VXMFabFlowNode* node = &iNode;
    while (!node->_flowEnd.loopEntry) {
        if (node->_flowEnd.search == search) {
            MarkLoop(*node);
            return node;
        }
        node->_flowEnd.search = search;
        VXMFabFlowNode* const next = node->_flowEnd.further ? node->_flowEnd.further : First(*node);
        if (!next) {
            return node;
        }
        node = next;
    }
    return node;
}

void VXMFlowEnds::Shorten(VXMFabFlowNode& iNode, VXMFabFlowNode& iEnd) {
    VXMFabFlowNode* node = &iNode;
    while (node != &iEnd) {
        VXMFabFlowNode* const next = node->_flowEnd.further ? node->_flowEnd.further : First(*node);
        node->_flowEnd.further = &iEnd;
        node = next;
    }
}

void VXMFlowEnds::MarkLoop(VXMFabFlowNode& iOnLoop) {
    VXMFabFlowNode* node = &iOnLoop;
    do {
        VXMFabFlowNode* const next = First(*node);
        next->_flowEnd.beforeOnLoop = node;
        next->_flowEnd.loopEntry = next;
        node = next;
    } while (node != &iOnLoop);
}

VXMFabFlowNode* VXMFlowEnds::FindLoopEntry(VXMFabFlowNode& iNode) {
    std::vector<VXMFabFlowNode*> passed;
    VXMFabFlowNode* node = &iNode;
    for (; !node->_flowEnd.loopEntry; node = First(*node)) {
        passed.push_back(node);
    }
    VXMFabFlowNode* const entry = node->_flowEnd.loopEntry;
    for (VXMFabFlowNode* before : passed) {
        before->_flowEnd.loopEntry = entry;
    }
    return entry;
}
