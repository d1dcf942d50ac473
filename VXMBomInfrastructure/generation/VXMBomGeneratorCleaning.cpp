// Cleaning of the MBOM, pass by pass.
//
// Present algorithm: removals and assignments of a product that stand beside each other go in pairs; process
// assignments go where the product is assigned beside them otherwise; and over the whole tree, depth first, the first
// node of each product stays and later removable ones go with all below them. The last step of the flow stands first in
// the tree, so a product is shown where it was named last.
//
// Legacy algorithm: the same pairing, then repeats go twice over, once over the whole tree and once among siblings.
//
// Every loop reads its count at the start. A node that goes lowers it, and the loop stays at the position; what was
// lifted to the end meanwhile isn't part of that run.

#include "QORPlatform/framework/QORDeepStack.h"
#include "VXMBomInfrastructure/generation/VXMBomGeneratorState.h"

namespace {

/// Goes through the nodes of one type with a step of a pass, which gives 1 when its node has gone.
template <class Step>
void GoThrough(const VXMPlaces& iNodes, Step iStep) {
    int count = iNodes.Size();
    int position = 1;
    while (position <= count) {
        if (iStep(iNodes[position]) == 1) {
            --count;
        } else {
            ++position;
        }
    }
}

/// What serves the searches of a pass while it runs.
class PassUnderWay {
public:
    explicit PassUnderWay(VXMBomComputation& ioComputation) : _computation(ioComputation) {
        _computation.siblings.emplace(_computation.tree);
        _computation.repeats.emplace(_computation.tree);
    }
    ~PassUnderWay() {
        _computation.siblings.reset();
        _computation.repeats.reset();
    }
    PassUnderWay(const PassUnderWay&) = delete;
    PassUnderWay& operator=(const PassUnderWay&) = delete;

private:
    VXMBomComputation& _computation;
};

} // namespace

void VXMBomGenerator::CleanMBOM_RemoveAssignments() {
    const PassUnderWay pass(*_state->computation);
    GoThrough(_state->computation->tree.GetNodes(VXMFabMBOMNode::AT_Remove),
              [this](VXMFabMBOMNode* iNode) { return CheckPreviousAssignments(iNode); });
}

void VXMBomGenerator::CleanMBOM_ProcessAssignments() {
    const PassUnderWay pass(*_state->computation);
    GoThrough(_state->computation->tree.GetNodes(VXMFabMBOMNode::AT_Process),
              [this](VXMFabMBOMNode* iNode) { return CheckPreviousFPAssignments(iNode); });
}

unsigned char VXMBomGenerator::CheckPreviousAssignments(VXMFabMBOMNode* iNode) {
    if (!iNode || !_state->computation->tree.IsAssigned(iNode->GetID())) {
        return 0;
    }
    VXMFabMBOMNode* partner = RemoveParallelRemoveAssignment(iNode);
    if (!partner) {
        partner = RemoveRemoveAssignment(iNode);
    }
    if (!partner) {
        return 0;
    }
    const int id = iNode->GetID();
    const bool isPartnerGone = RemoveNodeFromMBOMFlow(partner) == 1;
    const bool isNodeGone = RemoveNodeFromMBOMFlow(iNode) == 1;
    _state->computation->tree.NoteRemoved(id);
    return isPartnerGone && isNodeGone ? 1 : 0;
}

unsigned char VXMBomGenerator::CheckPreviousFPAssignments(VXMFabMBOMNode* iNode) {
    if (!iNode || !_state->computation->tree.IsAssigned(iNode->GetID())) {
        return 0;
    }
    const bool isAssignedOtherwise = RemoveParallelProcessAssignment(iNode) || _state->HasRepeatBelow(*iNode);
    return isAssignedOtherwise ? RemoveNodeFromMBOMFlow(iNode) : 0;
}

// The search beside a node, under the two names that the passes have for it.

VXMFabMBOMNode* VXMBomGenerator::RemoveParallelRemoveAssignment(VXMFabMBOMNode* iNode) {
    return _state->FindAssignmentBeside(iNode);
}

VXMFabMBOMNode* VXMBomGenerator::RemoveParallelProcessAssignment(VXMFabMBOMNode* iNode) {
    return _state->FindAssignmentBeside(iNode);
}

VXMFabMBOMNode* VXMBomGenerator::State::FindAssignmentBeside(VXMFabMBOMNode* iNode) const {
    if (!iNode || !iNode->GetPredecessor()) {
        return nullptr;
    }
    std::optional<VXMSiblingChains>& siblings = computation->siblings;
    return siblings ? siblings->FindBeside(*iNode) : VXMSiblingChains::SearchBeside(*iNode);
}

// The search below a node, likewise.

VXMFabMBOMNode* VXMBomGenerator::RemoveRemoveAssignment(VXMFabMBOMNode* iNode) {
    return _state->FindRepeatBelow(iNode);
}

VXMFabMBOMNode* VXMBomGenerator::RemoveProcessAssignment(VXMFabMBOMNode* iNode) {
    return _state->FindRepeatBelow(iNode);
}

VXMFabMBOMNode* VXMBomGenerator::State::FindRepeatBelow(VXMFabMBOMNode* iNode) const {
    std::optional<VXMRepeatMarks>& marks = computation->repeats;
    if (!iNode || (marks && marks->HasBelow(*iNode) == false)) {
        return nullptr;
    }
    return VXMRepeatMarks::SearchBelow(*iNode);
}

/// Whether FindRepeatBelow finds anything.
bool VXMBomGenerator::State::HasRepeatBelow(VXMFabMBOMNode& iNode) const {
    std::optional<VXMRepeatMarks>& marks = computation->repeats;
    const std::optional<bool> known = marks ? marks->HasBelow(iNode) : std::nullopt;
    return known ? *known : VXMRepeatMarks::SearchBelow(iNode) != nullptr;
}

namespace {

bool WasMet(const QORHashDico& iMet, const VXMFabMBOMNode& iNode) {
    return iMet.Locate(iNode.GetIDString()) != nullptr;
}

/// The loop of the three passes over repeats: each child that is removable and whose product was met goes; any other
/// is entered into what was met and stays.
template <class Remove, class Stay>
void ThinOut(VXMFabMBOMNode& ioNode, QORHashDico& ioMet, Remove iRemove, Stay iStay) {
    int count = ioNode.GetNumberOfSuccessors();
    int position = 1;
    while (position <= count) {
        VXMFabMBOMNode* const child = ioNode.GetSuccessor(position);
        if (child->IsRemovable() == 1 && WasMet(ioMet, *child)) {
            iRemove(child);
            --count;
        } else {
            ioMet.Insert(child->GetIDString(), child);
            iStay(child);
            ++position;
        }
    }
}

} // namespace

void VXMBomGenerator::CleanMBOM_3(VXMFabMBOMNode* iNode, QORHashDico& ioMet) {
    if (iNode) {
        ThinOut(
            *iNode, ioMet, [this](VXMFabMBOMNode* iChild) { RemoveNodeAndChildrenFromMBOMFlow(iChild); },
            [&](VXMFabMBOMNode* iChild) { QORCallDeep([&] { CleanMBOM_3(iChild, ioMet); }); });
    }
}

void VXMBomGenerator::CleanMBOM_1(VXMFabMBOMNode* iNode, QORHashDico& ioMet) {
    if (iNode) {
        ThinOut(
            *iNode, ioMet, [this](VXMFabMBOMNode* iChild) { RemoveNodeFromMBOMFlow(iChild); },
            [&](VXMFabMBOMNode* iChild) { CleanMBOM_3(iChild, ioMet); });
    }
}

void VXMBomGenerator::CleanMBOM_2(VXMFabMBOMNode* iNode) {
    if (!iNode) {
        return;
    }
    {
        QORHashDico met(10);
        ThinOut(
            *iNode, met, [this](VXMFabMBOMNode* iChild) { RemoveNodeFromMBOMFlow(iChild); }, [](VXMFabMBOMNode*) {});
    }
    // What was lifted stands at the end by now and has its own children cleaned like the rest.
    const int count = iNode->GetNumberOfSuccessors();
    for (int position = 1; position <= count; ++position) {
        QORCallDeep([&] { CleanMBOM_2(iNode->GetSuccessor(position)); });
    }
}
