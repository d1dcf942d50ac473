#pragma once

#include <memory>

class QORNavigBox;
class QORNavigInstance;

/// What a tree box needs from a toolkit. Called on the thread of the dialog loop, in the middle of other work: note
/// what has changed, ask the box when it is time to paint, and run no event loop here. Hold counted handles on
/// instances; one that has left the tree says so by a null GetBox. What a person does goes the other way, to the box's
/// Report operations.
class QORNavigBoxPeer {
public:
    virtual ~QORNavigBoxPeer() = default;

    /// Roots have come or gone.
    virtual void RootsChanged() = 0;

    /// The node was opened or closed, or has lost a child.
    virtual void ChildrenChanged(QORNavigInstance& iInstance) = 0;

    /// Label, icon, option or mark of a node in the tree are others.
    virtual void NodeChanged(QORNavigInstance& iInstance) = 0;

    /// Other nodes are selected.
    virtual void SelectionChanged() = 0;

    /// A setting of the box's controller or graph viewer is another.
    virtual void SettingsChanged() = 0;
};

/// Makes the peers of tree boxes.
class QORNavigBoxToolkit {
public:
    virtual ~QORNavigBoxToolkit() = default;

    /// The peer of a box that is just being made, empty as yet; null when the toolkit doesn't show it.
    virtual std::unique_ptr<QORNavigBoxPeer> MakePeer(QORNavigBox& iBox) = 0;
};
