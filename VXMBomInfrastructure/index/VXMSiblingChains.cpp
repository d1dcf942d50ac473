#include "VXMBomInfrastructure/index/VXMSiblingChains.h"

#include "VXMBomInfrastructure/generation/VXMBomTree.h"
#include "VXMBomInfrastructure/index/VXMByNumber.h"
#include "VXMBomInfrastructure/nodes/VXMFabMBOMNode.h"

#include <unordered_set>
#include <vector>

namespace {

constexpr int kShortList = 16; // up to this length a search from the front is as fast
constexpr int kNone = 0;

} // namespace

/// The chains of one list.
class VXMSiblingChains::Chains {
public:
    void Append(VXMFabMBOMNode& iNode) {
        if (!iNode.IsAssignment()) {
            return;
        }
        _links.push_back({&iNode, kNone});
        const auto added = static_cast<int>(_links.size());
        Ends& ends = _ends[iNode.GetID()];
        (ends.last == kNone ? ends.first : At(ends.last).next) = added;
        ends.last = added;
    }

    void Leave(const VXMFabMBOMNode& iNode) {
        if (!iNode.IsAssignment()) {
            return;
        }
        Ends& ends = _ends[iNode.GetID()];
        if (ends.first != kNone && At(ends.first).node == &iNode) {
            ends.first = At(ends.first).next;
            ends.last = ends.first == kNone ? kNone : ends.last;
        } else {
            _left.insert(&iNode);
        }
    }

    VXMFabMBOMNode* FindFirst(int iID, const VXMFabMBOMNode& iExcept) {
        Ends& ends = _ends[iID];
        ends.first = SkipLeft(ends.first);
        if (ends.first == kNone) {
            ends.last = kNone;
            return nullptr;
        }
        int link = ends.first;
        while (link != kNone && At(link).node == &iExcept) { // more than once only where it was entered more than once
            const int next = SkipLeft(At(link).next);
            At(link).next = next;
            ends.last = next == kNone ? link : ends.last;
            link = next;
        }
        return link == kNone ? nullptr : At(link).node;
    }

private:
    struct Link {
        VXMFabMBOMNode* node;
        int next;
    };
    struct Ends {
        int first = kNone;
        int last = kNone;
    };

    Link& At(int iLink) { return _links[iLink - 1]; }

    /// The first link from the given one on whose node hasn't left. Whoever asks takes the links before it out.
    int SkipLeft(int iLink) {
        while (iLink != kNone && !_left.empty() && _left.erase(At(iLink).node) > 0) {
            iLink = At(iLink).next;
        }
        return iLink;
    }

    std::vector<Link> _links;
    VXMByNumber<Ends> _ends;
    std::unordered_set<const VXMFabMBOMNode*> _left; // nodes that have left from behind the front of their chain
};

VXMSiblingChains::VXMSiblingChains(const VXMBomTree& iTree) : _tree(iTree) {}

VXMSiblingChains::~VXMSiblingChains() = default;

VXMFabMBOMNode* VXMSiblingChains::SearchBeside(VXMFabMBOMNode& iNode) {
    const VXMFabMBOMNode& parent = *iNode.GetPredecessor();
    const int count = parent.GetNumberOfSuccessors();
    for (int position = 1; position <= count; ++position) {
        VXMFabMBOMNode* const sibling = parent.GetSuccessor(position);
        if (sibling && sibling != &iNode && sibling->GetID() == iNode.GetID() && sibling->IsAssignment()) {
            return sibling;
        }
    }
    return nullptr;
}

VXMFabMBOMNode* VXMSiblingChains::FindBeside(VXMFabMBOMNode& iNode) {
    Chains* const chains = ChainsOf(*iNode.GetPredecessor());
    return chains ? chains->FindFirst(iNode.GetID(), iNode) : SearchBeside(iNode);
}

/// Null for a list that is searched from the front. Short lists are asked about anew, since they may grow.
VXMSiblingChains::Chains* VXMSiblingChains::ChainsOf(VXMFabMBOMNode& iParent) {
    const auto known = _chains.find(&iParent);
    if (known != _chains.end()) {
        return known->second.get();
    }
    const int count = iParent.GetNumberOfSuccessors();
    if (count <= kShortList) {
        return nullptr;
    }
    auto chains = std::make_unique<Chains>();
    VXMBomTree::RollCall registered(_tree, iParent);
    for (int position = 1; chains && position <= count; ++position) {
        VXMFabMBOMNode* const child = iParent.GetSuccessor(position);
        if (registered.Holds(child)) {
            chains->Append(*child);
        } else {
            chains.reset();
        }
    }
    return _chains.emplace(&iParent, std::move(chains)).first->second.get();
}

void VXMSiblingChains::Leave(const VXMFabMBOMNode& iParent, const VXMFabMBOMNode& iChild) {
    const auto known = _chains.find(&iParent);
    if (known != _chains.end() && known->second) {
        known->second->Leave(iChild);
    }
    _chains.erase(&iChild); // its own children go elsewhere, and its address may come again
}

void VXMSiblingChains::Append(const VXMFabMBOMNode& iParent, VXMFabMBOMNode& iChild) {
    const auto known = _chains.find(&iParent);
    if (known != _chains.end() && known->second) {
        known->second->Append(iChild);
    }
}
