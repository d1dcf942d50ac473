// Taking nodes out of the MBOM: out of the tree, out of the registries, and out of existence.

#include "QORPlatform/framework/QORDeepStack.h"
#include "VXMBomInfrastructure/generation/VXMBomGeneratorState.h"
#include "VXMBomInfrastructure/generation/VXMBomRecorder.h"

unsigned char VXMBomGenerator::RemoveNodeFromMBOMFlow(VXMFabMBOMNode* iNode) {
    VXMFabMBOMNode* const parent = iNode ? iNode->GetPredecessor() : nullptr;
    if (!parent) {
        return 0;
    }
    std::optional<VXMSiblingChains>& siblings = _state->computation->siblings; // while a pass runs
    parent->RemoveSuccessor(iNode);
    if (siblings) {
        siblings->Leave(*parent, *iNode);
    }
    const int count = iNode->GetNumberOfSuccessors();
    for (int position = 1; position <= count; ++position) {
        VXMFabMBOMNode* const child = iNode->GetSuccessor(position);
        child->RemovePredecessor();
        parent->AddSuccessor(child);
        child->SetPredecessor(parent);
        if (siblings) {
            siblings->Append(*parent, *child);
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
    _state->computation->tree.Remove(iNode);
    return 1;
}

unsigned char VXMBomGenerator::RemoveNodeAndChildrenFromListAndDico(VXMFabMBOMNode* iNode) {
    if (!iNode) {
        return 0;
    }
    const int count = iNode->GetNumberOfSuccessors();
    for (int position = 1; position <= count; ++position) {
        VXMFabMBOMNode* const child = iNode->GetSuccessor(position);
        VXMBomRecorder* const recorder = _state->computation->recorder;
        if (recorder && child) {
            recorder->NodeGoes(*child, VXMBomRecorder::R_BelowRepeat, *iNode);
        }
        QORCallDeep([&] { RemoveNodeAndChildrenFromListAndDico(child); });
    }
    return RemoveFromListAndDico(iNode);
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
