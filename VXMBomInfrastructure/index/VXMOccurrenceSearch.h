// The i-th occurrence of an item, of the kinds asked for, on all paths of the walk.
//
// In place of: walking all paths and counting.
// Why the same: what a path brings from a place on depends on that place alone, so the occurrences from there on are
// counted once for each place: its own entries, and those of each place before it, which may be passed over as a whole.
// What it gains: a search takes a step for each place on one path.

#pragma once

#include "VXMBomInfrastructure/index/VXMListings.h"
#include "VXMBomInfrastructure/index/VXMNatural.h"
#include "VXMBomInfrastructure/index/VXMPathTree.h"
#include "VXMBomInfrastructure/index/VXMUnrolledSteps.h"

#include <array>

class VXMOccurrenceSearch {
public:
    /// An entry of an item at a place.
    struct Listed {
        int place;
        int entry; ///< among those of the step
        VXMListings::AssignmentType type;
    };

    /// Kinds of occurrences, which may be added up.
    enum Kind : unsigned {
        K_First = 1,
        K_Process = 2,
        K_Assigned = K_First | K_Process,
        K_Remove = 4,
        K_Create = 8,
        K_Fastener = 16
    };
    static Kind KindOf(const Listed& iListed);

    /// Numbers of assignments and removals.
    struct Counts {
        std::array<VXMNatural, 3> byKind;

        VXMNatural& operator[](Kind iKind);
        VXMNatural Sum(unsigned iKinds) const;
        void Add(const Counts& iOther);
    };

    /// Paths that are found are entered into the tree. iLeft is that of VXMUnrolledSteps::Paths.
    VXMOccurrenceSearch(const VXMUnrolledSteps& iPlaces, const std::vector<int>& iLeft, VXMPathTree& ioTree);
    VXMOccurrenceSearch(const VXMOccurrenceSearch&) = delete;
    VXMOccurrenceSearch& operator=(const VXMOccurrenceSearch&) = delete;

    /// Counts an item's occurrences, from its entries in the order of places and entries.
    void Count(std::span<const Listed> iListed);

    const Counts& GetTotal() const { return _counts[_slots[0]]; }

    /// Finds an occurrence of these kinds, from 1 to the number of them, and keeps it in the tree. Gives the numbers of
    /// occurrences before it.
    Counts KeepOne(unsigned iKinds, VXMNatural iPlace);

private:
    void ListFollowers();
    void CollectPlaces(std::span<const Listed> iListed);
    std::span<const Listed> OwnOf(int iPlace) const;

    const VXMUnrolledSteps& _places;
    VXMPathTree& _tree;
    std::vector<int> _followersBegin; // by place, in _followers
    std::vector<int> _followers;
    std::vector<int> _turns; // by place: where it stands in the order of leaving

    // Of the item.
    std::span<const Listed> _listed;
    std::vector<int> _reached;   // places that have occurrences from there on, each behind those before it
    std::vector<int> _slots;     // by place: where it stands in _counts, -1 for not at all
    std::vector<Counts> _counts; // of the places of _reached
};
