#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/dialog/QORWatch.h"
#include "QORPlatform/navigation/QORNavigNode.h"

#include <memory>
#include <vector>

class QORNavigBox;

/// A place in a tree: the node of one tree object, with what is below it as far as it was opened. The box makes and
/// keeps instances; who holds one longer finds it without a box, a parent and children.
class QOR_EXPORT QORNavigInstance : public QORBaseUnknown, private QORCounted<QORNavigInstance> {
public:
    static constexpr std::string_view kCountName = "QORNavigInstance";

    ~QORNavigInstance() override;

    /// The box that the instance is in; null when it has left the tree or the tree has ended.
    QORNavigBox* GetBox() const { return _box.Get(); }

    /// The instance above, null for a root and as long as the instance is being made.
    QORNavigInstance* GetParent() const { return _parent; }

    /// Number of levels above this one, 0 for a root.
    int GetDepth() const { return _depth; }

    /// Position among its siblings, from 1; 0 for what isn't in the tree yet, or no longer.
    int GetPosition() const { return _position; }

    /// Position of the tree object in the list of children that the one above gave, or among the roots as they were
    /// added. Stays the same while siblings go.
    int GetOrdinal() const { return _ordinal; }

    /// What was made below; null outside 1 to the count. Nothing before the instance is opened for the first time.
    int GetChildCount() const { return static_cast<int>(_children.size()); }
    QORNavigInstance* GetChild(int iPosition) const;

    /// The child of an ordinal, null as long as it isn't made.
    QORNavigInstance* FindChild(int iOrdinal) const;

    /// The node, never null, and the implementation of its tree object.
    QORNavigNode* GetNode() const { return _node.Get(); }
    QORBaseUnknown* GetTreeObject() const { return _node->GetTreeObject(); }

    /// Opens the node: at the first time the tree object is asked for its children, and a node is made for each up to
    /// the size of the box's portion. Opening an open one changes nothing. Negative when the depth of the controller
    /// doesn't allow it, and for what is in no tree. What a tree object raises passes through, with nothing changed.
    QORStatus Expand();

    /// Number of tree objects that the node was opened on and that no child was made for yet: as many can come at most.
    int GetPendingCount() const;

    /// Makes the children for the next iCount of them, and gives the number of children that this has brought. What a
    /// tree object raises passes through, with nothing changed.
    int Fetch(int iCount);

    /// Closes the node; what was made below is kept.
    void Collapse();

    bool IsExpanded() const { return _expanded; }

    /// Whether opening may show something: true until a tree object has said that it has no children.
    bool MayExpand() const;

    /// Selects the node, in place of others where the controller allows one only, or takes it out of the selection.
    void Select(bool iOn);
    bool IsSelected() const;

    void SetMarked(bool iOn);
    bool IsMarked() const { return _marked; }

    /// Reads the label anew and lets the extension of the node's type give the node its looks.
    void Update();

    /// Text to show while the pointer rests on the node: what the extension says, the label without one.
    QORUnicodeString GetShortHelp();

    /// Takes the instance out of the tree, with all that is below it.
    void Remove();

private:
    friend class QORNavigBox;
    friend class QORNavigMemory;
    friend class QORNavigNode;
    using Instances = std::vector<QORVar<QORNavigInstance>>;
    using Objects = std::shared_ptr<const QORListValQORBaseUnknown_var>;

    QORNavigInstance(QORNavigBox& iBox, int iDepth, const QORBaseUnknown_var& iTreeObject, int iOrdinal);

    bool Fill();
    Instances MakeNext(const Objects& iObjects, int& ioTried, int iCount);
    void TakeIn(Instances iMade);
    void PlaceBelow(QORNavigInstance* iParent, int iPosition);
    void NodeChanged();
    static void TakeOut(Instances& ioSiblings, int iFirst, int iLast);
    void LeaveBox();
    QORNavigInstance* NextBelow(const QORNavigInstance& iTop) const;
    void DropBelow();

    QORWatch<QORNavigBox> _box;
    QORNavigInstance* _parent = nullptr;
    Instances _children;
    Objects _objects;   // below the tree object, null before they were asked for
    int _triedUpTo = 0; // of them
    QORVar<QORNavigNode> _node;
    int _depth;
    int _ordinal;
    int _position = 0;
    bool _expanded = false;
    bool _marked = false;
};
