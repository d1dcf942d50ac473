#include "VXMBomInfrastructure/index/VXMKeptOccurrences.h"

#include "QORPlatform/toolkit/QORProgress.h"

#include <algorithm>
#include <utility>

VXMKeptOccurrences::VXMKeptOccurrences(const VXMUnrolledSteps& iPlaces, const VXMListings& iListings,
                                       const VXMThinnedItems& iItems, const VXMUnrolledSteps::Paths& iFirst,
                                       const std::vector<std::uint64_t>& iPaths, std::uint64_t iMost)
    : _places(iPlaces), _items(iItems), _paths(iPaths), _most(iMost), _first(iFirst) {
    ListByItem(iListings);
    for (int item = 0; item < iListings.CountItems() && !IsTooLarge(); ++item) {
        if (_items.IsThinned(item)) {
            Keep(item);
        }
    }
    _tree.Settle();
}

void VXMKeptOccurrences::ListByItem(const VXMListings& iListings) {
    const auto forEach = [&](auto iVisit) {
        for (int place = 0; place < _places.Size(); ++place) {
            int index = 0;
            for (const VXMListings::Entry& entry : iListings.Of(_places.StepAt(place))) {
                if (_items.IsThinned(entry.item)) {
                    iVisit(entry.item, Listed{place, index, entry.type});
                }
                ++index;
            }
        }
    };
    _listedBegin.assign(static_cast<std::size_t>(iListings.CountItems()) + 1, 0);
    forEach([this](int iItem, const Listed&) { ++_listedBegin[iItem + 1]; });
    for (std::size_t item = 1; item < _listedBegin.size(); ++item) {
        _listedBegin[item] += _listedBegin[item - 1];
    }
    _listed.resize(_listedBegin.back());
    std::vector<int> next(_listedBegin.begin(), _listedBegin.end() - 1);
    forEach([&](int iItem, const Listed& iListed) { _listed[next[iItem]++] = iListed; });
}

void VXMKeptOccurrences::Keep(int iItem) {
    QORWork::Step();
    const std::span<const Listed> listed = ListedOf(iItem);
    KeepFirst(listed, Kind::K_Create);
    KeepFirst(listed, Kind::K_Fastener);
    if (_items.IsMover(iItem)) {
        KeepMover(listed);
    } else if (_items.MoverOf(iItem) >= 0) {
        KeepMoved(listed, iItem);
    } else if (Lists(listed, Kind::K_Assigned) && Lists(listed, Kind::K_Remove)) {
        KeepPair(listed, iItem);
    } else {
        KeepUnpaired(listed, iItem);
    }
}

bool VXMKeptOccurrences::Lists(std::span<const Listed> iListed, unsigned iKinds) {
    return std::any_of(iListed.begin(), iListed.end(),
                       [iKinds](const Listed& iEntry) { return (VXMOccurrenceSearch::KindOf(iEntry) & iKinds) != 0; });
}

void VXMKeptOccurrences::KeepFirst(std::span<const Listed> iListed, unsigned iKinds) {
    const Listed* first = nullptr;
    for (const Listed& listed : iListed) {
        if ((VXMOccurrenceSearch::KindOf(listed) & iKinds) != 0 &&
            (!first || _first.paths.order[listed.place] < _first.paths.order[first->place])) {
            first = &listed;
        }
    }
    if (first) {
        KeepAt(_first, *first);
    }
}

void VXMKeptOccurrences::KeepLastAssigned(std::span<const Listed> iListed) {
    if (!_last) {
        _lastPaths = std::make_unique<VXMUnrolledSteps::Paths>(_places.LastPaths());
        _last.emplace(*_lastPaths);
    }
    const Listed* last = nullptr;
    for (const Listed& listed : iListed) {
        if ((VXMOccurrenceSearch::KindOf(listed) & Kind::K_Assigned) != 0 &&
            (!last || _last->paths.order[listed.place] <= _last->paths.order[last->place])) {
            last = &listed;
        }
    }
    if (last) {
        KeepAt(*_last, *last);
    }
}

/// Without a pair: all assignments are left, and all removals.
void VXMKeptOccurrences::KeepUnpaired(std::span<const Listed> iListed, int iItem) {
    const int height = _items.HeightOf(iItem);
    KeepFirst(iListed, Kind::K_Remove);
    KeepFirst(iListed, Kind::K_First);
    if (height > 0) {
        KeepFirst(iListed, Kind::K_Process);
    }
    if (!Lists(iListed, Kind::K_First)) {
        KeepLastAssigned(iListed);
    }
    if (height > 1 && Lists(iListed, Kind::K_Process)) {
        Search().Count(iListed);
        KeepProcess(0, iItem);
    }
}

void VXMKeptOccurrences::KeepPair(std::span<const Listed> iListed, int iItem) {
    KeepFirst(iListed, Kind::K_Assigned);
    KeepFirst(iListed, Kind::K_Remove);
    const VXMNatural assigned = CountOf(iListed, Kind::K_Assigned);
    VXMNatural next = CountOf(iListed, Kind::K_Remove);
    if (assigned == next) {
        return;
    }
    if (next < assigned && _items.HeightOf(iItem) == 0 && !Lists(iListed, Kind::K_First)) {
        KeepLastAssigned(iListed); // nothing else of S, so where S begins needn't be known
        return;
    }
    Search().Count(iListed);
    if (assigned < next) {
        next = assigned;
        next += 1;
        Search().KeepOne(Kind::K_Remove, next);
        return;
    }
    KeepRest(iListed, next, iItem);
}

/// What is kept of the assignments behind so many, of which there are some.
void VXMKeptOccurrences::KeepRest(std::span<const Listed> iListed, VXMNatural iPassed, int iItem) {
    iPassed += 1;
    VXMOccurrenceSearch::Counts passed = Search().KeepOne(Kind::K_Assigned, iPassed);
    VXMNatural nextFirst = passed[Kind::K_First];
    nextFirst += 1;
    if (nextFirst <= Search().GetTotal().Sum(Kind::K_First)) {
        Search().KeepOne(Kind::K_First, nextFirst);
    } else {
        KeepLastAssigned(iListed);
    }
    KeepProcess(passed[Kind::K_Process], iItem);
}

VXMNatural VXMKeptOccurrences::CountPairs(std::span<const Listed> iListed) {
    return std::min(CountOf(iListed, Kind::K_Assigned), CountOf(iListed, Kind::K_Remove));
}

void VXMKeptOccurrences::KeepMover(std::span<const Listed> iListed) {
    const VXMNatural pairs = CountPairs(iListed);
    VXMNatural next = pairs;
    next += 1;
    Search().Count(iListed);
    Search().KeepOne(Kind::K_Assigned, pairs);
    Search().KeepOne(Kind::K_Remove, pairs);
    if (pairs < Search().GetTotal().Sum(Kind::K_Remove)) {
        Search().KeepOne(Kind::K_Remove, next);
    }
    if (pairs < Search().GetTotal().Sum(Kind::K_Assigned)) {
        Search().KeepOne(Kind::K_Assigned, next);
        KeepLastAssigned(iListed);
    }
}

void VXMKeptOccurrences::KeepMoved(std::span<const Listed> iListed, int iItem) {
    const VXMNatural assigned = CountOf(iListed, Kind::K_Assigned);
    const VXMNatural removed = CountOf(iListed, Kind::K_Remove);
    const VXMNatural pairs = std::min(assigned, removed);
    VXMNatural next = pairs;
    next += 1;
    Search().Count(iListed);
    KeepFirst(iListed, Kind::K_Remove);
    if (pairs < removed) {
        Search().KeepOne(Kind::K_Remove, next);
    }
    int taken = pairs == 0 ? 0 : 1; // of the front, by the pairs that are kept
    VXMNatural gone = pairs;
    if (pairs < assigned) {
        const VXMNatural moved = CountPairs(ListedOf(_items.MoverOf(iItem)));
        for (int copy = _items.CopiesOf(iItem); copy > 0; --copy) {
            gone += moved;
        }
        taken += gone < assigned ? _items.CopiesOf(iItem) : 1;
    }
    for (std::uint64_t place = 1; place <= static_cast<std::uint64_t>(taken); ++place) {
        Search().KeepOne(Kind::K_Assigned, place);
    }
    if (gone < assigned) {
        KeepRest(iListed, gone, iItem);
    }
}

/// The first h process assignments after so many.
void VXMKeptOccurrences::KeepProcess(VXMNatural iPassed, int iItem) {
    const VXMNatural all = Search().GetTotal().Sum(Kind::K_Process);
    for (int count = _items.HeightOf(iItem); count > 0 && iPassed < all && !IsTooLarge(); --count) {
        _repeatedNodes += _items.NodesOf(iItem);
        iPassed += 1;
        Search().KeepOne(Kind::K_Process, iPassed);
    }
}

void VXMKeptOccurrences::KeepAt(Tracks& ioTracks, const Listed& iListed) {
    std::vector<int> way;
    int place = iListed.place;
    for (; ioTracks.nodes[place] < 0; place = ioTracks.paths.from[place]) {
        way.push_back(place);
    }
    for (; !way.empty(); way.pop_back()) {
        const int next = way.back();
        ioTracks.nodes[next] = _tree.GoOn(ioTracks.nodes[place], ioTracks.paths.position[next]);
        place = next;
    }
    _tree.Keep(ioTracks.nodes[iListed.place], iListed.entry);
}

VXMNatural VXMKeptOccurrences::CountOf(std::span<const Listed> iListed, unsigned iKinds) {
    VXMNatural count;
    for (const Listed& listed : iListed) {
        if ((VXMOccurrenceSearch::KindOf(listed) & iKinds) != 0) {
            const std::uint64_t paths = _paths[listed.place];
            count += paths < VXMUnrolledSteps::kManyPaths ? VXMNatural(paths) : ExactPaths(listed.place);
        }
    }
    return count;
}

const VXMNatural& VXMKeptOccurrences::ExactPaths(int iPlace) {
    if (_exactPaths.empty()) {
        _exactPaths = _places.CountPaths<VXMNatural>(
            _first.paths.left, [](VXMNatural& ioSum, const VXMNatural& iPaths) { ioSum += iPaths; });
    }
    return _exactPaths[iPlace];
}

VXMOccurrenceSearch& VXMKeptOccurrences::Search() {
    if (!_search) {
        _search.emplace(_places, _first.paths.left, _tree);
    }
    return *_search;
}
