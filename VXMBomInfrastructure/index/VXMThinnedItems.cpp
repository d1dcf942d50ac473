#include "VXMBomInfrastructure/index/VXMThinnedItems.h"

#include <algorithm>
#include <map>
#include <memory>

VXMThinnedItems::VXMThinnedItems(const VXMListings& iListings, const std::vector<bool>& iHasManyPaths,
                                 VXMStructure::Kind iKind)
    : _items(iListings.CountItems()) {
    for (std::size_t step = 0; step < iHasManyPaths.size(); ++step) {
        for (const VXMListings::Entry& entry : iListings.Of(static_cast<int>(step))) {
            Item& item = _items[entry.item];
            item.hasManyPaths = item.hasManyPaths || iHasManyPaths[step];
            item.isAssigned = item.isAssigned || VXMListings::IsAssignment(entry.type);
            item.isRemoved = item.isRemoved || entry.type == VXMFabMBOMNode::AT_Remove;
            item.isFirstAssigned = item.isFirstAssigned || entry.type == VXMFabMBOMNode::AT_FirstAssign;
            _areThere = _areThere || item.hasManyPaths;
        }
    }
    if (_areThere) {
        ReadStructures(iListings, iKind);
    }
}

void VXMThinnedItems::ReadStructures(const VXMListings& iListings, VXMStructure::Kind iKind) {
    Reading reading;
    for (int item = 0; item < iListings.CountItems(); ++item) {
        reading.items[VXMStructures::IdentityOf(iListings.ObjectOf(item))] = item + 1;
    }
    // What stands below structure that holds itself is known when all has been read, and is like one that is assigned
    // from then on: pairs may leave some of it.
    const auto isMarked = [&](int iIdentity) {
        const int item = reading.items.Get(iIdentity);
        return (item > 0 && _items[item - 1].isAssigned) || reading.isWhole.Get(iIdentity);
    };
    auto structures = std::make_unique<VXMStructures>(iKind, isMarked);
    KeepWhole(iListings, *structures, reading);
    if (reading.hasCircle) {
        structures = std::make_unique<VXMStructures>(iKind, isMarked);
        KeepWhole(iListings, *structures, reading);
    }
    if (iListings.AreAmbiguous() || structures->AreAmbiguous()) {
        return;
    }
    FindMovers(iListings, *structures, reading);
    for (int item = 0; item < iListings.CountItems(); ++item) {
        const int identity = VXMStructures::IdentityOf(iListings.ObjectOf(item));
        _items[item].isThinned =
            _items[item].isThinned || (_items[item].hasManyPaths && !reading.isWhole.Get(identity));
    }
}

void VXMThinnedItems::KeepWhole(const VXMListings& iListings, VXMStructures& ioStructures, Reading& ioReading) {
    ioReading.candidates.clear();
    std::vector<int> whole;
    for (int index = 0; index < iListings.CountItems(); ++index) {
        Item& item = _items[index];
        const bool isPaired = item.isAssigned && item.isRemoved;
        if (!item.hasManyPaths && !isPaired) {
            continue;
        }
        const VXMStructures::Facts& facts = ioStructures.Of(iListings.ObjectOf(index));
        item.height = facts.height;
        item.nodes = facts.nodes;
        ioReading.hasCircle = ioReading.hasCircle || facts.holdsItself;
        if (facts.holdsItself || (isPaired && facts.holdsMarked && (facts.height > 1 || item.isFirstAssigned))) {
            whole.push_back(index);
        } else if (isPaired && facts.holdsMarked) {
            ioReading.candidates.push_back(index);
        }
    }
    for (const int item : whole) {
        ioStructures.VisitBelow(iListings.ObjectOf(item), [&](int iIdentity) { ioReading.isWhole[iIdentity] = true; });
    }
}

/// The parts that steps assign, as items.
std::vector<int> VXMThinnedItems::AssignedParts(const QORBaseUnknown_var& iObject, VXMStructures& ioStructures,
                                                const Reading& iReading) const {
    std::vector<int> parts;
    for (const int identity : ioStructures.PartsOf(iObject)) {
        const int item = iReading.items.Get(identity);
        if (item > 0 && _items[item - 1].isAssigned) {
            parts.push_back(item - 1);
        }
    }
    std::sort(parts.begin(), parts.end());
    return parts;
}

void VXMThinnedItems::FindMovers(const VXMListings& iListings, VXMStructures& ioStructures, Reading& ioReading) {
    std::vector<int> holders(_items.size(), 0);
    std::map<int, std::vector<int>> movers;
    for (const int candidate : ioReading.candidates) {
        std::vector<int>& parts = movers[candidate];
        parts = AssignedParts(iListings.ObjectOf(candidate), ioStructures, ioReading);
        int latest = -1;
        for (const int part : parts) {
            holders[part] += part == latest ? 0 : 1;
            latest = part;
        }
    }
    const auto sharesParts = [&](const auto& iMover) {
        return std::any_of(iMover.second.begin(), iMover.second.end(), [&](int iPart) { return holders[iPart] > 1; });
    };
    const auto holdsWhole = [&](const auto& iMover) {
        const std::vector<int> parts = ioStructures.PartsOf(iListings.ObjectOf(iMover.first));
        return ioReading.isWhole.Get(VXMStructures::IdentityOf(iListings.ObjectOf(iMover.first))) ||
               std::any_of(parts.begin(), parts.end(), [&](int iPart) { return ioReading.isWhole.Get(iPart); });
    };
    // One that is kept whole, with its parts, may make others so.
    const auto isKeptWhole = [&](const auto& iMover) {
        const bool isWhole = sharesParts(iMover) || holdsWhole(iMover);
        if (isWhole) {
            ioStructures.VisitBelow(iListings.ObjectOf(iMover.first),
                                    [&](int iIdentity) { ioReading.isWhole[iIdentity] = true; });
        }
        return isWhole;
    };
    while (std::erase_if(movers, isKeptWhole) > 0) {
    }
    for (const auto& [mover, parts] : movers) {
        TakeMover(mover, parts);
    }
}

void VXMThinnedItems::TakeMover(int iMover, const std::vector<int>& iParts) {
    const bool haveManyPaths =
        _items[iMover].hasManyPaths ||
        std::any_of(iParts.begin(), iParts.end(), [this](int iPart) { return _items[iPart].hasManyPaths; });
    if (!haveManyPaths) {
        return;
    }
    _items[iMover].isThinned = _items[iMover].isMover = true;
    for (const int part : iParts) {
        _items[part].isThinned = true;
        _items[part].mover = iMover;
        ++_items[part].copies;
    }
}
