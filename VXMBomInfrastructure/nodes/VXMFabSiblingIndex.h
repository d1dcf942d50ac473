#pragma once

#include "VXMBomInfrastructure/nodes/VXMFabPlaces.h"

#include <unordered_map>
#include <vector>

/// Finds the assignments of a product among the children of one parent without looking at the others: a chain of
/// places per identity number, in list order. A place that its node has left drops out when a search comes past it.
class VXMFabSiblingIndex {
public:
    explicit VXMFabSiblingIndex(const VXMFabPlaces& iPlaces);

    /// Takes up the node at the last place.
    void TakeLast();

    /// The first assignment with that identity number that isn't iExcept, or null.
    VXMFabMBOMNode* FindAssignment(int iID, const VXMFabMBOMNode* iExcept);

private:
    struct Chain {
        int first;
        int last;
    };

    void Take(int iPlace);
    int SkipLeft(int iPlace) const;

    const VXMFabPlaces& _places;
    std::vector<int> _next; // next place of the same chain, by place
    std::unordered_map<int, Chain> _chains;
};
