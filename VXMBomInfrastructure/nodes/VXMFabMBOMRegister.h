#pragma once

#include "VXMBomInfrastructure/nodes/VXMFabPlaces.h"

/// The living MBOM nodes of one assignment type in the order in which they were made. A node leaves in constant time.
class VXMFabMBOMRegister {
public:
    /// The nodes by places; see VXMFabPlaces for loops in which nodes leave.
    const VXMFabPlaces& GetPlaces() const { return _nodes; }

    void Append(VXMFabMBOMNode* iNode);

    /// Removes the node and gives its place, or -1 when it isn't registered here.
    int RemoveValue(VXMFabMBOMNode* iNode);

    void RemoveAll() { _nodes.Clear(); }

private:
    VXMFabPlaces _nodes;
};
