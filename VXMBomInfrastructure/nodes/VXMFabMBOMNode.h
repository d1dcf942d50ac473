#pragma once

#include "QORPlatform/framework/QORObjectCounts.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORString.h"
#include "QORPlatform/text/QORUnicodeString.h"
#include "VXMBomInfrastructure/VXMExport.h"
#include "VXMBomInfrastructure/nodes/VXMFabPlaces.h"

#include <memory>

class VXMFabSiblingIndex;

/// One line of the manufacturing bill of materials in the making: an object of the model, how a step of the flow made
/// use of it, and where it stands. Predecessor and successors are parent and children of a tree.
///
/// Many nodes may stand for one product; they share its identity number. The generator owns all nodes. Neither
/// end of a link follows the other: AddSuccessor and SetPredecessor go together.
class VXM_EXPORT VXMFabMBOMNode : private QORCounted<VXMFabMBOMNode> {
public:
    static constexpr std::string_view kCountName = "VXMFabMBOMNode";

    /// How the node came to be; the children of a structure take the value of their parent. The numbers serve as
    /// indexes of the generator's registries.
    enum AssignmentType {
        AT_Top = 0,         ///< the top node, which stands for no product
        AT_FirstAssign = 1, ///< a product that enters at a step
        AT_Process = 2,     ///< a product that a step works on
        AT_Remove = 3,      ///< a product that a step takes away
        AT_Create = 4,      ///< a product that a step puts out
        AT_Fastener = 5     ///< a fastener joined at a step
    };

    /// Reads name and identity number of iProduct; a null handle makes a node named "TOPNODE" with number -1.
    /// iRemovable is 1 when the cleaning may remove the node as a repeat.
    VXMFabMBOMNode(const QORBaseUnknown_var& iProduct, const int iLevel, const int iNumber,
                   AssignmentType iAssignmentType, const unsigned char iRemovable);
    virtual ~VXMFabMBOMNode();
    VXMFabMBOMNode(const VXMFabMBOMNode&) = delete;
    VXMFabMBOMNode& operator=(const VXMFabMBOMNode&) = delete;

    void SetPredecessor(VXMFabMBOMNode* iNode) { _predecessor = iNode; }
    void RemovePredecessor() { _predecessor = nullptr; }
    VXMFabMBOMNode* GetPredecessor() const { return _predecessor; }

    /// Appends a child; null is ignored. Doesn't touch the child's predecessor.
    void AddSuccessor(VXMFabMBOMNode* iNode);
    int GetNumberOfSuccessors() const { return _successors.Size(); }

    /// The child at a position from 1, null outside 1 to the number.
    VXMFabMBOMNode* GetSuccessor(int iPosition);

    /// Takes a child out of the list, by position or its first entry by value; what isn't there is ignored. Neither
    /// deletes the child nor touches its predecessor.
    void RemoveSuccessor(int iPosition);
    void RemoveSuccessor(VXMFabMBOMNode* iNode);

    /// Name that the bill shows, as narrow text and as text of the platform.
    QORString GetName() const { return QORString(static_cast<const char*>(_name)); }
    QORUnicodeString GetUName() const { return _name; }

    /// Running number, for traces only.
    int GetNumber() const { return _number; }

    /// Depth at which the node was made, the top node's being 0. A node that cleaning lifts keeps it, so compare levels
    /// only before the cleaning.
    int GetLevel() const { return _level; }

    /// Identity number of the product, -1 on the top node, and the same in decimal.
    int GetID() const { return _id; }
    QORUnicodeString GetIDString() const;

    /// The product, a null handle on the top node.
    QORBaseUnknown_var GetProduct() const { return _product; }

    AssignmentType GetAssignmentType() const { return _assignmentType; }
    AssignmentType GetAT() const { return _assignmentType; }

    /// Whether the node counts as an assignment of its product: one that enters or one that is worked on.
    bool IsAssignment() const { return _assignmentType == AT_FirstAssign || _assignmentType == AT_Process; }

    /// 1 when the cleaning may remove the node as a repeat; callers test for 1.
    unsigned char IsRemovable() const { return _removable; }

    /// The children by places, for loops in which children leave.
    const VXMFabPlaces& GetSuccessorPlaces() const { return _successors; }

    /// The first child with that identity number that is an assignment and not iExcept, or null.
    VXMFabMBOMNode* FindAssignment(int iID, const VXMFabMBOMNode* iExcept);

private:
    friend class QORCounted<VXMFabMBOMNode>;
    friend class VXMFabMBOMRegister;

    void CloseGaps();
    int FindPlace(const VXMFabMBOMNode* iChild) const;
    void LeavePlace(int iPlace);

    VXMFabMBOMNode* _predecessor = nullptr;
    VXMFabPlaces _successors;
    std::unique_ptr<VXMFabSiblingIndex> _index;
    QORUnicodeString _name;
    QORBaseUnknown_var _product;
    int _level;
    int _id = -1;
    int _number;
    AssignmentType _assignmentType;
    unsigned char _removable;

    // Where this node stands in its parent's list. A node that was entered a second time while it stood somewhere has
    // no known place and is searched for.
    bool _isPlaceKnown = true;
    VXMFabMBOMNode* _placedIn = nullptr;
    int _place = 0;
    int _placeInRegister = -1;
};
