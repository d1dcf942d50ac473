// What the steps before the end list, by small numbers of items.
//
// In place of: reading the lists of a step, and the identity number of each entry, whenever one of them is looked at.
// Why the same: lists don't change once a step has a node, and an item is its identity number for all passes.
// What it gains: what is to be known of an item stands in plain arrays.

#pragma once

#include "QORPlatform/framework/QORVar.h"
#include "VXMBomInfrastructure/index/VXMStepGraph.h"
#include "VXMBomInfrastructure/nodes/VXMFabMBOMNode.h"

#include <span>
#include <vector>

class VXMListings {
public:
    using AssignmentType = VXMFabMBOMNode::AssignmentType;

    struct Entry {
        int item;
        AssignmentType type;
    };

    /// iTakes(step, type) tells whether the build takes a step's list of a type.
    VXMListings(const VXMStepGraph& iGraph, const std::function<bool(VXMFabFlowNode&, AssignmentType)>& iTakes);

    /// The entries of a step that brings products or has such before it, in the order in which they are taken.
    std::span<const Entry> Of(int iStep) const {
        return std::span(_entries).subspan(_begin[iStep], _begin[iStep + 1] - _begin[iStep]);
    }

    static bool IsAssignment(AssignmentType iType) {
        return iType == VXMFabMBOMNode::AT_FirstAssign || iType == VXMFabMBOMNode::AT_Process;
    }

    /// Items are numbered from 0; the object is that of an entry.
    int CountItems() const { return static_cast<int>(_objects.size()); }
    const QORBaseUnknown_var& ObjectOf(int iItem) const { return _objects[iItem]; }

    /// Whether two objects share an identity number.
    bool AreAmbiguous() const { return _areAmbiguous; }

private:
    std::vector<int> _begin;
    std::vector<Entry> _entries;
    std::vector<QORBaseUnknown_var> _objects;
    bool _areAmbiguous = false;
};
