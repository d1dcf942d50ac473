// A list of MBOM nodes which any of them can leave.
//
// In place of: QORRawCollPV, which searches a value from the front and moves up all that stands behind it. With a
// million children under the top node, or a million nodes in a register, each removal would cost a million steps.
// Why the same: a node that leaves makes its place empty. Positions count the places that are taken, so every position,
// and the order, are those of the closed list. A value that was entered twice is searched from the front.
// What it gains: 33,000 products that are assigned, removed and assigned again take 0.5 s in place of 3.5, and the
// cost grows with their number, not with its square. Positions that are asked for one after the other, as a pass
// does, cost a step each; and so do nodes that leave one near the other, which a pass makes them do, in a list that
// holds none twice. Others are found by a table, which is made when the first of them leaves.

#pragma once

#include "QORPlatform/framework/QORLargeMemory.h"

#include <memory>
#include <vector>

class VXMFabMBOMNode;

/// MBOM nodes by positions from 1, in the order in which they were added. Compares addresses only and looks into no
/// node, so that one that ended without leaving the list harms nobody. Owns nothing.
class VXMPlaces {
public:
    VXMPlaces();
    ~VXMPlaces();
    VXMPlaces(const VXMPlaces&) = delete;
    VXMPlaces& operator=(const VXMPlaces&) = delete;

    int Size() const;

    /// The node at a position, null outside 1 to the size.
    VXMFabMBOMNode* operator[](int iPosition) const;

    /// Adds a node. Whoever knows that it isn't in the list yet says so.
    enum class Entry { First, MaybeAgain };
    void Append(VXMFabMBOMNode* iNode, Entry iEntry = Entry::MaybeAgain);

    /// Takes out the first entry of that node; false when there is none.
    bool RemoveValue(const VXMFabMBOMNode* iNode);

    void RemovePosition(int iPosition);
    void RemoveAll();

    /// Whether the node stands in the list.
    bool Holds(const VXMFabMBOMNode* iNode) const;

private:
    class Gaps;
    using Nodes = std::vector<VXMFabMBOMNode*, QORLargeAllocator<VXMFabMBOMNode*>>;

    int PlaceOf(const VXMFabMBOMNode* iNode) const;
    Gaps& OpenGaps() const;

    // A question to a long list makes the gaps' book-keeping, which holds on to the nodes.
    mutable Nodes _nodes; // null where a node has left
    mutable std::unique_ptr<Gaps> _gaps;
    bool _mayRepeat = false;
};
