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
#include "VXMBomInfrastructure/generation/VXMBomRecorder.h"
#include "VXMBomInfrastructure/index/VXMByNumber.h"

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
    if (VXMBomRecorder* const recorder = _state->computation->recorder) {
        recorder->NodeGoes(*partner, VXMBomRecorder::R_Paired, *iNode);
        recorder->NodeGoes(*iNode, VXMBomRecorder::R_Paired, *partner);
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
    VXMFabMBOMNode* const beside = RemoveParallelProcessAssignment(iNode);
    if (!beside && !_state->HasRepeatBelow(*iNode)) {
        return 0;
    }
    if (VXMBomRecorder* const recorder = _state->computation->recorder) {
        recorder->NodeGoes(*iNode, VXMBomRecorder::R_AssignedOtherwise,
                           beside ? *beside : *RemoveProcessAssignment(iNode));
    }
    return RemoveNodeFromMBOMFlow(iNode);
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

/// The node of each product that was met first, by the IDs' texts: the public operations hand a dictionary on.
class MetByText {
public:
    explicit MetByText(QORHashDico& ioMet) : _met(ioMet) {}
    const VXMFabMBOMNode* Find(const VXMFabMBOMNode& iNode) const {
        return static_cast<const VXMFabMBOMNode*>(_met.Locate(iNode.GetIDString()));
    }
    void Enter(VXMFabMBOMNode& iNode) { _met.Insert(iNode.GetIDString(), &iNode); }

private:
    QORHashDico& _met;
};

/// The same by the numbers; see VXMByNumber.
class MetByNumber {
public:
    const VXMFabMBOMNode* Find(const VXMFabMBOMNode& iNode) const { return _met.Get(iNode.GetID()); }
    void Enter(const VXMFabMBOMNode& iNode) {
        const VXMFabMBOMNode*& first = _met[iNode.GetID()];
        first = first ? first : &iNode;
    }

    /// Forgets the products of the children of a node.
    void ForgetChildren(const VXMFabMBOMNode& iNode) {
        const int count = iNode.GetNumberOfSuccessors();
        for (int position = 1; position <= count; ++position) {
            _met[iNode.GetSuccessor(position)->GetID()] = nullptr;
        }
    }

private:
    VXMByNumber<const VXMFabMBOMNode*> _met;
};

/// What the three passes over repeats are made of.
template <class Met>
class Thinning {
public:
    Thinning(VXMBomGenerator& ioGenerator, VXMBomRecorder* iRecorder, Met& ioMet)
        : _generator(ioGenerator), _recorder(iRecorder), _met(ioMet) {}

    /// Repeats go with all that is below them.
    void Whole(VXMFabMBOMNode& ioNode) {
        ThinOut(
            ioNode, [this](VXMFabMBOMNode* iChild) { _generator.RemoveNodeAndChildrenFromMBOMFlow(iChild); },
            [this](VXMFabMBOMNode* iChild) {
                if (iChild->GetNumberOfSuccessors() > 0) {
                    QORCallDeep([&] { Whole(*iChild); });
                }
            });
    }

    /// Repeats among the children go alone, deeper ones with all that is below them.
    void Alone(VXMFabMBOMNode& ioNode) {
        ThinOut(
            ioNode, [this](VXMFabMBOMNode* iChild) { _generator.RemoveNodeFromMBOMFlow(iChild); },
            [this](VXMFabMBOMNode* iChild) { Whole(*iChild); });
    }

    /// Repeats beside each other go, at every level. What was lifted stands at the end by then and has its own children
    /// cleaned like the rest.
    void Beside(VXMFabMBOMNode& ioNode) {
        if (ioNode.GetNumberOfSuccessors() > 1) {
            ThinOut(
                ioNode, [this](VXMFabMBOMNode* iChild) { _generator.RemoveNodeFromMBOMFlow(iChild); },
                [](VXMFabMBOMNode*) {});
            _met.ForgetChildren(ioNode);
        }
        const int count = ioNode.GetNumberOfSuccessors();
        for (int position = 1; position <= count; ++position) {
            QORCallDeep([&] { Beside(*ioNode.GetSuccessor(position)); });
        }
    }

private:
    /// Each child that is removable and whose product was met goes; any other is entered into what was met and stays.
    template <class Remove, class Stay>
    void ThinOut(VXMFabMBOMNode& ioNode, Remove iRemove, Stay iStay) {
        int count = ioNode.GetNumberOfSuccessors();
        int position = 1;
        while (position <= count) {
            VXMFabMBOMNode* const child = ioNode.GetSuccessor(position);
            const VXMFabMBOMNode* const met = child->IsRemovable() == 1 ? _met.Find(*child) : nullptr;
            if (met) {
                if (_recorder) {
                    _recorder->NodeGoes(*child, VXMBomRecorder::R_Repeat, *met);
                }
                iRemove(child);
                --count;
            } else {
                _met.Enter(*child);
                iStay(child);
                ++position;
            }
        }
    }

    VXMBomGenerator& _generator;
    VXMBomRecorder* _recorder;
    Met& _met;
};

} // namespace

void VXMBomGenerator::CleanMBOM_3(VXMFabMBOMNode* iNode, QORHashDico& ioMet) {
    if (iNode) {
        MetByText met(ioMet);
        Thinning(*this, _state->computation->recorder, met).Whole(*iNode);
    }
}

void VXMBomGenerator::CleanMBOM_1(VXMFabMBOMNode* iNode, QORHashDico& ioMet) {
    if (iNode) {
        MetByText met(ioMet);
        Thinning(*this, _state->computation->recorder, met).Alone(*iNode);
    }
}

void VXMBomGenerator::CleanMBOM_2(VXMFabMBOMNode* iNode) {
    if (iNode) {
        MetByNumber met;
        Thinning(*this, _state->computation->recorder, met).Beside(*iNode);
    }
}

void VXMBomGenerator::State::RemoveRepeats(VXMBomGenerator& ioGenerator, VXMFabMBOMNode& ioTop) const {
    MetByNumber met;
    Thinning thinning(ioGenerator, computation->recorder, met);
    usesLegacyAlgorithm ? thinning.Alone(ioTop) : thinning.Whole(ioTop);
}
