// Cleaning of the MBOM.
//
// Present way: removals and assignments of a product that stand beside each other go in pairs; process assignments go
// where the product is assigned beside them otherwise; and over the whole tree, depth first, the first node of each
// product stays and later removable ones go with all below them. The last step of the flow
// stands first in the tree, so a product is shown where it was named last.
//
// Older way: the same pairing, then repeats go twice over, once over the whole tree and once among brothers.
//
// A pass goes through a list by places, so nodes that leave, or are lifted to its end, don't disturb it: what was
// lifted while a pass runs over a list isn't part of that run.

#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

#include <unordered_set>
#include <utility>
#include <vector>

/// The nodes that have, somewhere below, an assignment with the identity of its own parent. Made once for a pass: a
/// pass changes what is below a node only after that node's turn, since a node was registered before all that is below
/// it.
class VXMBomGenerator::RepeatMarks {
public:
    explicit RepeatMarks(VXMBomGenerator& ioGenerator) : _generator(ioGenerator) {
        for (const auto type : {VXMFabMBOMNode::AT_FirstAssign, VXMFabMBOMNode::AT_Process}) {
            const VXMFabPlaces& nodes = ioGenerator._mbomNodes[type].GetPlaces();
            for (int place = 0; place < nodes.End(); ++place) {
                MarkAbove(nodes.At(place));
            }
        }
        _generator._repeatMarks = this;
    }
    ~RepeatMarks() { _generator._repeatMarks = nullptr; }
    RepeatMarks(const RepeatMarks&) = delete;
    RepeatMarks& operator=(const RepeatMarks&) = delete;

    bool HasBelow(const VXMFabMBOMNode* iNode) const { return _marked.contains(iNode); }

private:
    void MarkAbove(const VXMFabMBOMNode* iNode) {
        const VXMFabMBOMNode* above = iNode ? iNode->GetPredecessor() : nullptr;
        if (!above || above->GetID() != iNode->GetID()) {
            return;
        }
        while (above && _marked.insert(above).second) {
            above = above->GetPredecessor();
        }
    }

    VXMBomGenerator& _generator;
    std::unordered_set<const VXMFabMBOMNode*> _marked;
};

void VXMBomGenerator::CleanMBOM_RemoveAssignments() {
    const RepeatMarks marks(*this);
    const VXMFabPlaces& removals = _mbomNodes[VXMFabMBOMNode::AT_Remove].GetPlaces();
    for (int place = 0; place < removals.End(); ++place) {
        CheckPreviousAssignments(removals.At(place));
    }
}

void VXMBomGenerator::CleanMBOM_ProcessAssignments() {
    const RepeatMarks marks(*this);
    const VXMFabPlaces& assignments = _mbomNodes[VXMFabMBOMNode::AT_Process].GetPlaces();
    for (int place = 0; place < assignments.End(); ++place) {
        CheckPreviousFPAssignments(assignments.At(place));
    }
}

unsigned char VXMBomGenerator::CheckPreviousAssignments(VXMFabMBOMNode* iNode) {
    if (!iNode || !IsAssigned(iNode)) {
        return 0;
    }
    VXMFabMBOMNode* partner = RemoveParallelRemoveAssignment(iNode);
    if (!partner && MayHaveRepeatBelow(iNode)) {
        partner = RemoveRemoveAssignment(iNode);
    }
    if (!partner) {
        return 0;
    }
    QORUnicodeString id = iNode->GetIDString();
    const bool isPartnerGone = RemoveNodeFromMBOMFlow(partner) == 1;
    const bool isNodeGone = RemoveNodeFromMBOMFlow(iNode) == 1;
    _removedIDs.Append(std::move(id));
    return isPartnerGone && isNodeGone ? 1 : 0;
}

unsigned char VXMBomGenerator::CheckPreviousFPAssignments(VXMFabMBOMNode* iNode) {
    if (!iNode || !IsAssigned(iNode)) {
        return 0;
    }
    // Only whether there is another one matters, and within a pass the marks tell that without a search.
    const bool isAssignedOtherwise =
        RemoveParallelProcessAssignment(iNode) ||
        (_repeatMarks ? _repeatMarks->HasBelow(iNode) : RemoveProcessAssignment(iNode) != nullptr);
    return isAssignedOtherwise ? RemoveNodeFromMBOMFlow(iNode) : 0;
}

bool VXMBomGenerator::IsAssigned(const VXMFabMBOMNode* iNode) const {
    return _mbomNodeIDs[VXMFabMBOMNode::AT_FirstAssign].Has(iNode->GetID()) ||
           _mbomNodeIDs[VXMFabMBOMNode::AT_Process].Has(iNode->GetID());
}

bool VXMBomGenerator::MayHaveRepeatBelow(const VXMFabMBOMNode* iNode) const {
    return !_repeatMarks || _repeatMarks->HasBelow(iNode);
}

VXMFabMBOMNode* VXMBomGenerator::RemoveParallelRemoveAssignment(VXMFabMBOMNode* iNode) {
    return FindAssignmentBeside(iNode);
}

VXMFabMBOMNode* VXMBomGenerator::RemoveParallelProcessAssignment(VXMFabMBOMNode* iNode) {
    return FindAssignmentBeside(iNode);
}

VXMFabMBOMNode* VXMBomGenerator::FindAssignmentBeside(VXMFabMBOMNode* iNode) {
    if (!iNode || !iNode->GetPredecessor()) {
        return nullptr;
    }
    return iNode->GetPredecessor()->FindAssignment(iNode->GetID(), iNode);
}

VXMFabMBOMNode* VXMBomGenerator::RemoveRemoveAssignment(VXMFabMBOMNode* iNode) {
    return FindRepeatBelow(iNode);
}

VXMFabMBOMNode* VXMBomGenerator::RemoveProcessAssignment(VXMFabMBOMNode* iNode) {
    return FindRepeatBelow(iNode);
}

VXMFabMBOMNode* VXMBomGenerator::FindRepeatBelow(VXMFabMBOMNode* iNode) {
    std::vector<std::pair<const VXMFabMBOMNode*, int>> path; // each with the next place to look at
    if (iNode) {
        path.emplace_back(iNode, 0);
    }
    while (!path.empty()) {
        auto& [parent, place] = path.back();
        if (place >= parent->GetSuccessorPlaces().End()) {
            path.pop_back();
            continue;
        }
        VXMFabMBOMNode* const child = parent->GetSuccessorPlaces().At(place++);
        if (!child) {
            continue;
        }
        if (child->GetID() == parent->GetID() && child->IsAssignment()) {
            return child;
        }
        path.emplace_back(child, 0);
    }
    return nullptr;
}

namespace {

bool WasMet(const VXMFabMBOMNode& iNode, const QORHashDico& iMet) {
    return iMet.Locate(iNode.GetIDString()) != nullptr;
}

bool IsRepeat(const VXMFabMBOMNode& iNode, const QORHashDico& iMet) {
    return iNode.IsRemovable() == 1 && WasMet(iNode, iMet);
}

} // namespace

void VXMBomGenerator::CleanMBOM_3(VXMFabMBOMNode* iNode, QORHashDico& ioMet) {
    struct Frame {
        VXMFabMBOMNode* node;
        int place;
        int end;
    };
    std::vector<Frame> path;
    const auto enter = [&path](VXMFabMBOMNode* iEntered) {
        path.push_back({iEntered, 0, iEntered->GetSuccessorPlaces().End()});
    };
    if (iNode) {
        enter(iNode);
    }
    while (!path.empty()) {
        Frame& frame = path.back();
        if (frame.place >= frame.end) {
            path.pop_back();
            continue;
        }
        VXMFabMBOMNode* const child = frame.node->GetSuccessorPlaces().At(frame.place++);
        if (!child) {
            continue;
        }
        if (IsRepeat(*child, ioMet)) {
            RemoveNodeAndChildrenFromMBOMFlow(child);
        } else {
            ioMet.Insert(child->GetIDString(), child);
            enter(child);
        }
    }
}

void VXMBomGenerator::CleanMBOM_1(VXMFabMBOMNode* iNode, QORHashDico& ioMet) {
    if (!iNode) {
        return;
    }
    const VXMFabPlaces& children = iNode->GetSuccessorPlaces();
    const int end = children.End();
    for (int place = 0; place < end; ++place) {
        VXMFabMBOMNode* const child = children.At(place);
        if (!child) {
            continue;
        }
        if (IsRepeat(*child, ioMet)) {
            RemoveNodeFromMBOMFlow(child);
        } else {
            ioMet.Insert(child->GetIDString(), child);
            CleanMBOM_3(child, ioMet);
        }
    }
}

void VXMBomGenerator::CleanMBOM_2(VXMFabMBOMNode* iNode) {
    std::vector<VXMFabMBOMNode*> pending;
    if (iNode) {
        pending.push_back(iNode);
    }
    while (!pending.empty()) {
        VXMFabMBOMNode* const node = pending.back();
        pending.pop_back();
        const VXMFabPlaces& children = node->GetSuccessorPlaces();
        QORHashDico met(10);
        const int end = children.End();
        for (int place = 0; place < end; ++place) {
            VXMFabMBOMNode* const child = children.At(place);
            if (child && IsRepeat(*child, met)) {
                RemoveNodeFromMBOMFlow(child);
            } else if (child) {
                met.Insert(child->GetIDString(), child);
            }
        }
        // What was lifted stands at the end by now and has its own children cleaned like the rest.
        for (int place = 0; place < children.End(); ++place) {
            if (children.At(place)) {
                pending.push_back(children.At(place));
            }
        }
    }
}
