#pragma once

#include <vector>

class VXMFabMBOMNode;

/// MBOM nodes in the order in which they were added, which any of them can leave in constant time.
///
/// A node that leaves makes its place empty; places after it keep their number until Close is called. Whoever loops
/// while nodes leave goes by places (from 0 to End, skipping null), everybody else by positions after a Close.
class VXMFabPlaces {
public:
    /// Number of nodes, without the empty places.
    int Size() const { return _size; }

    /// One past the last place.
    int End() const { return static_cast<int>(_nodes.size()); }
    bool HasGaps() const { return _size != End(); }

    /// The node at a place, null for an empty place and outside 0 to End.
    VXMFabMBOMNode* At(int iPlace) const { return iPlace >= 0 && iPlace < End() ? _nodes[iPlace] : nullptr; }

    /// Adds a node behind the last place and gives its place.
    int Append(VXMFabMBOMNode* iNode) {
        _nodes.push_back(iNode);
        ++_size;
        return End() - 1;
    }

    /// Makes a taken place empty.
    void Leave(int iPlace) {
        _nodes[iPlace] = nullptr;
        --_size;
    }

    /// Closes the gaps, so that place p is position p + 1; calls iMoved(node, place) for each node.
    template <class Moved>
    void Close(Moved iMoved) {
        std::erase(_nodes, nullptr);
        for (int place = 0; place < End(); ++place) {
            iMoved(*_nodes[place], place);
        }
    }

    void Clear() {
        _nodes.clear();
        _size = 0;
    }

private:
    std::vector<VXMFabMBOMNode*> _nodes;
    int _size = 0;
};
