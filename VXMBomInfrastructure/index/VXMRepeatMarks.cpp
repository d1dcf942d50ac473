#include "VXMBomInfrastructure/index/VXMRepeatMarks.h"

#include "QORPlatform/framework/QORDeepStack.h"
#include "VXMBomInfrastructure/generation/VXMBomTree.h"
#include "VXMBomInfrastructure/nodes/VXMFabMBOMNode.h"

#include <unordered_map>
#include <vector>

namespace {

using AssignmentType = VXMFabMBOMNode::AssignmentType;

bool IsRepeat(const VXMFabMBOMNode& iNode, const VXMFabMBOMNode& iParent) {
    return iNode.GetID() == iParent.GetID() && iNode.IsAssignment();
}

} // namespace

VXMFabMBOMNode* VXMRepeatMarks::SearchBelow(const VXMFabMBOMNode& iNode) {
    const int count = iNode.GetNumberOfSuccessors();
    for (int position = 1; position <= count; ++position) {
        VXMFabMBOMNode* const child = iNode.GetSuccessor(position);
        VXMFabMBOMNode* found = IsRepeat(*child, iNode) ? child : nullptr;
        if (!found) {
            QORCallDeep([&] { found = SearchBelow(*child); });
        }
        if (found) {
            return found;
        }
    }
    return nullptr;
}

std::optional<bool> VXMRepeatMarks::HasBelow(const VXMFabMBOMNode& iNode) {
    if (!_isMade) {
        _isMade = true;
        _isUsable = ChildrenFollowTheirParents();
        if (_isUsable) {
            MarkRepeats();
        }
    }
    return _isUsable ? std::optional(_marked.contains(&iNode)) : std::nullopt;
}

/// Whether lists and parents mirror each other, one entry a child, and every child but those of the top node stands in
/// its parent's register, behind it. Looks into no node that isn't registered.
bool VXMRepeatMarks::ChildrenFollowTheirParents() const {
    std::unordered_map<const VXMFabMBOMNode*, int> places;
    int children = 0;
    for (int type = VXMFabMBOMNode::AT_Top; type <= VXMFabMBOMNode::AT_Fastener; ++type) {
        const VXMPlaces& nodes = _tree.GetNodes(AssignmentType(type));
        for (int position = 1; position <= nodes.Size(); ++position) {
            places.emplace(nodes[position], static_cast<int>(places.size()));
            children += nodes[position]->GetPredecessor() ? 1 : 0;
        }
    }
    std::vector<bool> isListed(places.size(), false);
    for (const auto& [node, place] : places) {
        for (int position = 1; position <= node->GetNumberOfSuccessors(); ++position) {
            const VXMFabMBOMNode* const child = node->GetSuccessor(position);
            const auto known = places.find(child);
            if (known == places.end() || known->second < place || isListed[known->second] ||
                child->GetPredecessor() != node ||
                (node->GetAT() != VXMFabMBOMNode::AT_Top && child->GetAT() != node->GetAT())) {
                return false;
            }
            isListed[known->second] = true;
            --children;
        }
    }
    return children == 0;
}

void VXMRepeatMarks::MarkRepeats() {
    for (const AssignmentType type : {VXMFabMBOMNode::AT_FirstAssign, VXMFabMBOMNode::AT_Process}) {
        const VXMPlaces& nodes = _tree.GetNodes(type);
        for (int position = 1; position <= nodes.Size(); ++position) {
            const VXMFabMBOMNode* above = nodes[position]->GetPredecessor();
            if (!above || !IsRepeat(*nodes[position], *above)) {
                continue;
            }
            while (above && _marked.insert(above).second) {
                above = above->GetPredecessor();
            }
        }
    }
}
