#pragma once

#include <memory>

class QORNavigBox;
class QORNavigInstance;

/// What a tree box needs from a toolkit. Called on the thread of the dialog loop, in the middle of other work: note
/// what has changed, ask the box when it is time to paint, and run no event loop here. Hold counted handles on
/// instances; one that has left the tree says so by a null GetBox. What a person does goes the other way, to the box's
/// Report operations.
///
/// Rows are the instances of the tree. Below a row there are none before a person opens it (ReportExpand); a peer that
/// shows long lists sets the size of a portion (SetPortion) when it is made, and fetches further rows as a person comes
/// near them (Fetch of the row above).
class QORNavigBoxPeer {
public:
    virtual ~QORNavigBoxPeer() = default;

    /// Rows come below iParent, null for roots, and will have, or have, the positions iFirst to iLast, counted from 1:
    /// told before they are there, and again when they are.
    virtual void RowsAboutToCome(QORNavigInstance* iParent, int iFirst, int iLast) = 0;
    virtual void RowsCame(QORNavigInstance* iParent, int iFirst, int iLast) = 0;

    /// Rows go, with all that is below them: told before and afterwards, with the positions that they had.
    virtual void RowsAboutToGo(QORNavigInstance* iParent, int iFirst, int iLast) = 0;
    virtual void RowsGone(QORNavigInstance* iParent, int iFirst, int iLast) = 0;

    /// The row was opened or closed: IsExpanded.
    virtual void OpenChanged(QORNavigInstance& iRow) = 0;

    /// Label, icon, option or mark of a row in the tree are others.
    virtual void NodeChanged(QORNavigInstance& iRow) = 0;

    /// Other rows are selected.
    virtual void SelectionChanged() = 0;

    /// A setting of the box's controller or graph viewer is another.
    virtual void SettingsChanged() = 0;

    /// The tree is about to be filled anew, and was. In between all rows go and others come; those that stand for the
    /// same as before are opened, selected and marked again when it ends, and ScrollTo brings back what was seen.
    virtual void RefillBegins() = 0;
    virtual void RefillEnds() = 0;

    /// The uppermost row that a person sees, null for none.
    virtual QORNavigInstance* GetTopRow() = 0;

    /// Scroll so that the row is the uppermost one that is seen, or just so far that it is seen at all.
    enum Place { AtTop, InView };
    virtual void ScrollTo(QORNavigInstance& iRow, Place iPlace) = 0;
};

/// Makes the peers of tree boxes.
class QORNavigBoxToolkit {
public:
    virtual ~QORNavigBoxToolkit() = default;

    /// The peer of a box that is just being made, empty as yet; null when the toolkit doesn't show it.
    virtual std::unique_ptr<QORNavigBoxPeer> MakePeer(QORNavigBox& iBox) = 0;
};
