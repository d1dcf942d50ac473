#pragma once

#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORString.h"
#include "QORPlatform/text/QORUnicodeString.h"
#include "VXMBomInfrastructure/VXMExport.h"

#include <memory>

/// One line of the manufacturing bill of materials in the making: an object of the model, how a step of the flow made
/// use of it, and where it stands. Predecessor and successors are parent and children of a tree.
///
/// Many nodes may stand for one product; they share its identity number. The generator owns all nodes. Neither
/// end of a link follows the other: AddSuccessor and SetPredecessor go together.
class VXM_EXPORT VXMFabMBOMNode {
public:
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

    void SetPredecessor(VXMFabMBOMNode* iNode);
    void RemovePredecessor();
    VXMFabMBOMNode* GetPredecessor() const;

    /// Appends a child; null is ignored. Doesn't touch the child's predecessor.
    void AddSuccessor(VXMFabMBOMNode* iNode);
    int GetNumberOfSuccessors() const;

    /// The child at a position from 1, null outside 1 to the number.
    VXMFabMBOMNode* GetSuccessor(int iPosition) const;

    /// Takes a child out of the list, by position or its first entry by value; what isn't there is ignored. Neither
    /// looks into the child, deletes it or touches its predecessor.
    void RemoveSuccessor(int iPosition);
    void RemoveSuccessor(VXMFabMBOMNode* iNode);

    /// Name that the bill shows, as narrow text and as text of the platform.
    QORString GetName() const;
    QORUnicodeString GetUName() const;

    /// Running number, for traces only.
    int GetNumber() const;

    /// Depth at which the node was made, the top node's being 0. A node that cleaning lifts keeps it, so compare levels
    /// only before the cleaning.
    int GetLevel() const;

    /// Identity number of the product, -1 on the top node, and the same in decimal.
    int GetID() const;
    QORUnicodeString GetIDString() const;

    /// The product, a null handle on the top node.
    QORBaseUnknown_var GetProduct() const;

    AssignmentType GetAssignmentType() const;
    AssignmentType GetAT() const;

    /// Whether the node counts as an assignment of its product: one that enters or one that is worked on.
    bool IsAssignment() const;

    /// 1 when the cleaning may remove the node as a repeat; callers test for 1.
    unsigned char IsRemovable() const;

private:
    friend class VXMBomGenerator;
    friend class VXMPooledMBOMNode;

    /// Appends a child that is in no list yet.
    VXM_HIDDEN void AddFirst(VXMFabMBOMNode& iChild);

    /// The name, for as long as the node lives.
    VXM_HIDDEN const char* PeekName() const;

    class State;
    std::unique_ptr<State> _state;
};
