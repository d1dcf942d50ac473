#include "VXMBomInfrastructure/generation/VXMBomTree.h"

#include <algorithm>

namespace {

bool HasKnownType(const VXMFabMBOMNode& iNode) {
    return iNode.GetAT() >= VXMFabMBOMNode::AT_Top && iNode.GetAT() <= VXMFabMBOMNode::AT_Fastener;
}

} // namespace

VXMBomTree::~VXMBomTree() {
    Free();
}

void VXMBomTree::Enter(VXMFabMBOMNode* iNode, VXMPlaces::Entry iEntry) {
    if (!iNode || !HasKnownType(*iNode)) {
        return;
    }
    // The count first, so that a node that couldn't be entered everywhere isn't owned here yet.
    int* const count = iNode->IsAssignment() ? &_assignments[iNode->GetID()] : nullptr;
    _nodes[iNode->GetAT()].Append(iNode, iEntry);
    if (count) {
        ++*count;
    }
}

void VXMBomTree::Remove(VXMFabMBOMNode* iNode) {
    if (HasKnownType(*iNode) && _nodes[iNode->GetAT()].RemoveValue(iNode) && iNode->IsAssignment()) {
        --_assignments[iNode->GetID()];
    }
    if (_top == iNode) {
        _top = nullptr;
    }
    delete iNode;
}

void VXMBomTree::Free() {
    for (VXMPlaces& nodes : _nodes) {
        for (int position = 1; position <= nodes.Size(); ++position) {
            delete nodes[position];
        }
        nodes.RemoveAll();
    }
    _assignments.RemoveAll();
    _top = nullptr;
}

bool VXMBomTree::Holds(const VXMFabMBOMNode* iNode) const {
    return std::any_of(_nodes.begin(), _nodes.end(), [iNode](const VXMPlaces& iNodes) { return iNodes.Holds(iNode); });
}

VXMBomTree::RollCall::RollCall(const VXMBomTree& iTree, const VXMFabMBOMNode& iParent)
    : _tree(iTree), _parent(iParent), _skipsLeft(4 * iParent.GetNumberOfSuccessors()) {}

bool VXMBomTree::RollCall::Holds(const VXMFabMBOMNode* iChild) {
    for (std::size_t type = 0; type < _positions.size(); ++type) {
        if (iChild && NextChild(_tree._nodes[type], _positions[type]) == iChild) {
            ++_positions[type];
            return true;
        }
    }
    return _tree.Holds(iChild);
}

/// The next node of a register that has the parent; another, or null, when too many others stand before it.
const VXMFabMBOMNode* VXMBomTree::RollCall::NextChild(const VXMPlaces& iNodes, int& ioPosition) {
    const VXMFabMBOMNode* node = iNodes[ioPosition];
    while (node && node->GetPredecessor() != &_parent && _skipsLeft > 0) {
        --_skipsLeft;
        node = iNodes[++ioPosition];
    }
    return node;
}
