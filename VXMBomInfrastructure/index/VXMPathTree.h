// Some of the paths on which a walk comes to places, told by the positions at which they go on, with what is kept at
// the end of each: the tree that these paths make.

#pragma once

#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

/// Nodes are numbered from 0, the beginning of all paths. First all paths are entered, then the tree is read.
class VXMPathTree {
public:
    static constexpr int kRoot = 0;

    /// The node behind another at a position, made when it isn't there.
    int GoOn(int iNode, int iPosition);

    /// Keeps an entry at the end of the path to a node; twice is once.
    void Keep(int iNode, int iEntry) { _kept.push_back({iNode, iEntry}); }

    int Size() const { return _size; }

    /// Ends the entering.
    void Settle();

    /// Further nodes in the order of their positions; and the entries that are kept at a node, in order.
    struct Branch {
        int position;
        int node;
    };
    std::span<const Branch> BranchesAt(int iNode) const { return Part(_branches, _branchesBegin, iNode); }
    std::span<const int> KeptAt(int iNode) const { return Part(_entries, _entriesBegin, iNode); }

private:
    struct Link {
        int node;
        int position;
        int further;
    };
    struct Kept {
        int node;
        int entry;
        bool operator==(const Kept&) const = default;
    };

    template <class Value>
    static std::span<const Value> Part(const std::vector<Value>& iValues, const std::vector<int>& iBegin, int iNode) {
        return std::span(iValues).subspan(iBegin[iNode], iBegin[iNode + 1] - iBegin[iNode]);
    }

    int _size = 1;
    std::unordered_map<std::uint64_t, int> _further; // by node and position
    std::vector<Link> _links;
    std::vector<Kept> _kept;

    std::vector<Branch> _branches;
    std::vector<int> _branchesBegin;
    std::vector<int> _entries;
    std::vector<int> _entriesBegin;
};
