// Which items may be thinned out, and what is to be known of them for that.
//
// An item all of whose steps are reached on one path has nothing to be thinned out. Structure that holds itself looks
// different wherever it is expanded, so whatever holds such a thing, or stands below it, is kept whole. And so is an
// item that is assigned and removed while something below it is assigned by steps themselves, with all below it: each
// of its pairings takes the front of the assignments below and puts another one at their end, which isn't removable, so
// that the bill itself may show one for each. Such an item may be thinned out all the same, a mover of its parts, when
// steps only assign it otherwise (no first assignment, so that what it puts at the end is no line of its own), when its
// parts are leaves, and when nothing else that is assigned and removed holds those of them that steps assign. Pairings
// of structure that holds itself may leave assignments, too, so what shares parts with it is kept whole as well.
// VXMKeptOccurrences tells why the rest may be thinned out.

#pragma once

#include "VXMBomInfrastructure/index/VXMListings.h"
#include "VXMBomInfrastructure/index/VXMStructures.h"

class VXMThinnedItems {
public:
    /// iHasManyPaths tells of each step number, iKind what structure counts. The model is asked for structure.
    VXMThinnedItems(const VXMListings& iListings, const std::vector<bool>& iHasManyPaths, VXMStructure::Kind iKind);

    /// Whether there is an item with several paths at all, one that may be thinned out or not.
    bool AreThere() const { return _areThere; }

    bool IsThinned(int iItem) const { return _items[iItem].isThinned; }

    /// Whether an item that is thinned out moves parts; the mover of a part that is thinned out and assigned, -1 when
    /// it has none; and how often it stands there.
    bool IsMover(int iItem) const { return _items[iItem].isMover; }
    int MoverOf(int iItem) const { return _items[iItem].mover; }
    int CopiesOf(int iItem) const { return _items[iItem].copies; }

    /// Of an item with several paths: how high its structure is, and how many nodes an occurrence with structure makes.
    int HeightOf(int iItem) const { return _items[iItem].height; }
    std::uint64_t NodesOf(int iItem) const { return _items[iItem].nodes; }

private:
    struct Item {
        bool hasManyPaths = false;
        bool isAssigned = false;
        bool isFirstAssigned = false;
        bool isRemoved = false;
        bool isThinned = false;
        bool isMover = false;
        int mover = -1;
        int copies = 0;
        int height = 0;
        std::uint64_t nodes = 1;
    };

    /// What is found out while structures are read.
    struct Reading {
        bool hasCircle = false;      // something holds itself
        VXMByNumber<bool> isWhole;   // by identity
        VXMByNumber<int> items;      // by identity: from 1
        std::vector<int> candidates; // items that may be movers
    };

    void ReadStructures(const VXMListings& iListings, VXMStructure::Kind iKind);

    void KeepWhole(const VXMListings& iListings, VXMStructures& ioStructures, Reading& ioReading);
    void FindMovers(const VXMListings& iListings, VXMStructures& ioStructures, Reading& ioReading);
    void TakeMover(int iMover, const std::vector<int>& iParts);
    std::vector<int> AssignedParts(const QORBaseUnknown_var& iObject, VXMStructures& ioStructures,
                                   const Reading& iReading) const;

    std::vector<Item> _items;
    bool _areThere = false;
};
