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

void VXMBomTree::Add(VXMFabMBOMNode* iNode) {
    if (!iNode || !HasKnownType(*iNode)) {
        return;
    }
    // The count first, so that a node that couldn't be entered everywhere isn't owned here yet.
    int* const count = iNode->IsAssignment() ? &_assignments[iNode->GetID()] : nullptr;
    _nodes[iNode->GetAT()].Append(iNode);
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
