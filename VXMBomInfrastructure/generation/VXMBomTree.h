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
    void Add(VXMFabMBOMNode* iNode) { Enter(iNode, VXMPlaces::Entry::MaybeAgain); }

    /// The same for a node that was just made, and so isn't registered yet.
    void AddNew(VXMFabMBOMNode& iNode) { Enter(&iNode, VXMPlaces::Entry::First); }

    /// Takes a node out of the registries and deletes it.
    void Remove(VXMFabMBOMNode* iNode);

    /// Deletes all nodes.
    void Free();

    const VXMPlaces& GetNodes(AssignmentType iType) const { return _nodes[iType]; }

    /// Whether that very node is registered; looks into no node.
    bool Holds(const VXMFabMBOMNode* iNode) const;

    /// Asks the same of all children of a parent, one after the other: children that come in the order in which they
    /// were registered are met there, without being looked for.
    class RollCall {
    public:
        RollCall(const VXMBomTree& iTree, const VXMFabMBOMNode& iParent);
        bool Holds(const VXMFabMBOMNode* iChild);

    private:
        const VXMFabMBOMNode* NextChild(const VXMPlaces& iNodes, int& ioPosition);

        const VXMBomTree& _tree;
        const VXMFabMBOMNode& _parent;
        std::array<int, 6> _positions{1, 1, 1, 1, 1, 1}; // in the registers
        int _skipsLeft;                                  // over nodes of other parents
    };

    /// Whether a node that is an assignment bears the number.
    bool IsAssigned(int iID) const { return _assignments.Get(iID) > 0; }

    /// Products whose removal was paired with an assignment.
    void NoteRemoved(int iID) { _removedIDs[iID] = true; }
    bool WasRemoved(int iID) const { return _removedIDs.Get(iID); }

    VXMFabMBOMNode* GetTop() const { return _top; }
    void SetTop(VXMFabMBOMNode* iNode) { _top = iNode; }

private:
    void Enter(VXMFabMBOMNode* iNode, VXMPlaces::Entry iEntry);

    std::array<VXMPlaces, 6> _nodes; // by assignment type
    VXMByNumber<int> _assignments;   // how many assignments bear each number
    VXMByNumber<bool> _removedIDs;
    VXMFabMBOMNode* _top = nullptr;
};
