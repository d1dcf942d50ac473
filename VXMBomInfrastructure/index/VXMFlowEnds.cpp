#include "VXMBomInfrastructure/index/VXMFlowEnds.h"

#include "VXMBomInfrastructure/nodes/VXMFabFlowNode.h"

#include <unordered_set>
#include <vector>

VXMFabFlowNode* VXMFlowEnds::Walk(VXMFabFlowNode* iNode) {
    std::unordered_set<const VXMFabFlowNode*> met;
    while (iNode && iNode->GetNumberOfSuccessors() > 0) {
        met.insert(iNode);
        VXMFabFlowNode* const next = iNode->GetSuccessor(1);
        if (met.contains(next)) {
            return iNode;
        }
        iNode = next;
    }
    return iNode;
}

VXMFabFlowNode* VXMFlowEnds::Find(VXMFabFlowNode* iNode) {
    if (!iNode || iNode->GetNumberOfSuccessors() == 0) {
        return iNode;
    }
    VXMFabFlowNode* const next = iNode->GetSuccessor(1);
    if (next && next->GetNumberOfSuccessors() == 0) {
        return next; // nothing to remember: many flows end so
    }
    VXMFabFlowNode* const reached = RunAhead(*iNode);
    if (_memos[reached].loopEntry) {
        return _memos[FindLoopEntry(*iNode)].beforeOnLoop;
    }
    Shorten(*iNode, *reached);
    // A root with a successor has a null one: the flow ends there in nothing.
    return reached->GetNumberOfSuccessors() == 0 ? reached : nullptr;
}

VXMFabFlowNode* VXMFlowEnds::Next(VXMFabFlowNode& iNode) {
    VXMFabFlowNode* const further = _memos[&iNode].further;
    return further ? further : iNode.GetSuccessor(1);
}

/// Runs to the root of the node's tree, or to a node that knows its way into a loop.
VXMFabFlowNode* VXMFlowEnds::RunAhead(VXMFabFlowNode& iNode) {
    ++_search;
    VXMFabFlowNode* node = &iNode;
    while (true) {
        Memo& memo = _memos[node];
        if (memo.loopEntry) {
            return node;
        }
        if (memo.search == _search) {
            MarkLoop(*node);
            return node;
        }
        memo.search = _search;
        VXMFabFlowNode* const next = memo.further ? memo.further : node->GetSuccessor(1);
        if (!next) {
            return node;
        }
        node = next;
    }
}

void VXMFlowEnds::Shorten(VXMFabFlowNode& iNode, VXMFabFlowNode& iEnd) {
    VXMFabFlowNode* node = &iNode;
    while (node != &iEnd) {
        VXMFabFlowNode* const next = Next(*node);
        _memos[node].further = &iEnd;
        node = next;
    }
}

void VXMFlowEnds::MarkLoop(VXMFabFlowNode& iOnLoop) {
    VXMFabFlowNode* node = &iOnLoop;
    do {
        VXMFabFlowNode* const next = node->GetSuccessor(1);
        Memo& memo = _memos[next];
        memo.beforeOnLoop = node;
        memo.loopEntry = next;
        node = next;
    } while (node != &iOnLoop);
}

VXMFabFlowNode* VXMFlowEnds::FindLoopEntry(VXMFabFlowNode& iNode) {
    std::vector<VXMFabFlowNode*> passed;
    VXMFabFlowNode* node = &iNode;
    for (; !_memos[node].loopEntry; node = node->GetSuccessor(1)) {
        passed.push_back(node);
    }
    VXMFabFlowNode* const entry = _memos[node].loopEntry;
    for (VXMFabFlowNode* before : passed) {
        _memos[before].loopEntry = entry;
    }
    return entry;
}
