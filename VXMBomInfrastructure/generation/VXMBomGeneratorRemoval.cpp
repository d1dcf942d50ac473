// Taking nodes out of the MBOM: out of the tree, out of the registries, and out of existence.

#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

#include <vector>

unsigned char VXMBomGenerator::RemoveNodeFromMBOMFlow(VXMFabMBOMNode* iNode) {
    VXMFabMBOMNode* const parent = iNode ? iNode->GetPredecessor() : nullptr;
    if (!parent) {
        return 0;
    }
    parent->RemoveSuccessor(iNode);
    const VXMFabPlaces& children = iNode->GetSuccessorPlaces();
    for (int place = 0; place < children.End(); ++place) {
        if (VXMFabMBOMNode* const child = children.At(place)) {
            iNode->RemoveSuccessor(child);
            child->RemovePredecessor();
            parent->AddSuccessor(child);
            child->SetPredecessor(parent);
        }
    }
    return RemoveFromListAndDico(iNode);
}

unsigned char VXMBomGenerator::RemoveNodeAndChildrenFromMBOMFlow(VXMFabMBOMNode* iNode) {
    if (!iNode || !iNode->GetPredecessor()) {
        return 0;
    }
    iNode->GetPredecessor()->RemoveSuccessor(iNode);
    return RemoveNodeAndChildrenFromListAndDico(iNode);
}

unsigned char VXMBomGenerator::RemoveFromListAndDico(VXMFabMBOMNode* iNode) {
    if (!iNode) {
        return 0;
    }
    if (_mbomNodes[iNode->GetAT()].RemoveValue(iNode) >= 0) {
        _mbomNodeIDs[iNode->GetAT()].Remove(iNode->GetID());
    }
    const int position = _usedIDs.Locate(iNode->GetIDString());
    if (position >= 1) {
        const int count = _usedIDCounts[position] - 1;
        _usedIDCounts.Replace(position, count);
        if (count < 1) {
            // The order of the two lists means nothing, so the last entry takes the place.
            _usedIDs.RemovePositionUnordered(position);
            _usedIDCounts.Replace(position, _usedIDCounts[_usedIDCounts.Size()]);
            _usedIDCounts.RemovePosition(_usedIDCounts.Size());
        }
    }
    delete iNode;
    return 1;
}

unsigned char VXMBomGenerator::RemoveNodeAndChildrenFromListAndDico(VXMFabMBOMNode* iNode) {
    if (!iNode) {
        return 0;
    }
    // Parents are met before their children, so backwards each goes before its parent.
    std::vector<VXMFabMBOMNode*> nodes{iNode};
    for (std::size_t index = 0; index < nodes.size(); ++index) {
        const VXMFabPlaces& children = nodes[index]->GetSuccessorPlaces();
        for (int place = 0; place < children.End(); ++place) {
            if (children.At(place)) {
                nodes.push_back(children.At(place));
            }
        }
    }
    for (auto node = nodes.rbegin(); node != nodes.rend(); ++node) {
        RemoveFromListAndDico(*node);
    }
    return 1;
}

void VXMBomGenerator::MoveSuccessors(VXMFabMBOMNode* iSource, VXMFabMBOMNode* iTarget) {
    if (!iSource || !iTarget) {
        return;
    }
    const int count = iSource->GetNumberOfSuccessors();
    for (int position = 1; position <= count; ++position) {
        iTarget->AddSuccessor(iSource->GetSuccessor(position));
    }
}
