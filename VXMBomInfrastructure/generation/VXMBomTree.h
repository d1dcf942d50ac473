#pragma once

#include "VXMBomInfrastructure/index/VXMByNumber.h"
#include "VXMBomInfrastructure/index/VXMPlaces.h"
#include "VXMBomInfrastructure/nodes/VXMFabMBOMNode.h"

#include <array>

/// The MBOM tree of one computation with its registries: which nodes there are, by assignment type and in the order in
/// which they were made, and which products they stand for. Owns the registered nodes.
class VXMBomTree {
public:
    using AssignmentType = VXMFabMBOMNode::AssignmentType;

    VXMBomTree() = default;
    ~VXMBomTree();
    VXMBomTree(const VXMBomTree&) = delete;
    VXMBomTree& operator=(const VXMBomTree&) = delete;

    /// Registers a node; null is ignored, and so is a node of no known type.
    void Add(VXMFabMBOMNode* iNode);

    /// Takes a node out of the registries and deletes it.
    void Remove(VXMFabMBOMNode* iNode);

    /// Deletes all nodes.
    void Free();

    const VXMPlaces& GetNodes(AssignmentType iType) const { return _nodes[iType]; }

    /// Whether that very node is registered; looks into no node.
    bool Holds(const VXMFabMBOMNode* iNode) const;

    /// Whether a node that is an assignment bears the number.
    bool IsAssigned(int iID) const { return _assignments.Get(iID) > 0; }

    /// Products whose removal was paired with an assignment.
    void NoteRemoved(int iID) { _removedIDs[iID] = true; }
    bool WasRemoved(int iID) const { return _removedIDs.Get(iID); }

    VXMFabMBOMNode* GetTop() const { return _top; }
    void SetTop(VXMFabMBOMNode* iNode) { _top = iNode; }

private:
    std::array<VXMPlaces, 6> _nodes; // by assignment type
    VXMByNumber<int> _assignments;   // how many assignments bear each number
    VXMByNumber<bool> _removedIDs;
    VXMFabMBOMNode* _top = nullptr;
};
