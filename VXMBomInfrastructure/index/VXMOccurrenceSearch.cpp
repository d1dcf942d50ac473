#include "VXMBomInfrastructure/index/VXMOccurrenceSearch.h"

#include "QORPlatform/toolkit/QORProgress.h"

#include <algorithm>
#include <bit>

namespace {

constexpr int kNone = -1;

bool IsCounted(unsigned iKind) {
    return iKind <= VXMOccurrenceSearch::K_Remove;
}

} // namespace

VXMOccurrenceSearch::Kind VXMOccurrenceSearch::KindOf(const Listed& iListed) {
    switch (iListed.type) {
    case VXMFabMBOMNode::AT_FirstAssign:
        return K_First;
    case VXMFabMBOMNode::AT_Process:
        return K_Process;
    case VXMFabMBOMNode::AT_Remove:
        return K_Remove;
    case VXMFabMBOMNode::AT_Create:
        return K_Create;
    default:
        return K_Fastener;
    }
}

VXMNatural& VXMOccurrenceSearch::Counts::operator[](Kind iKind) {
    return byKind[std::countr_zero(static_cast<unsigned>(iKind))];
}

VXMNatural VXMOccurrenceSearch::Counts::Sum(unsigned iKinds) const {
    VXMNatural sum;
    for (std::size_t kind = 0; kind < byKind.size(); ++kind) {
        if ((iKinds >> kind & 1U) != 0) {
            sum += byKind[kind];
        }
    }
    return sum;
}

void VXMOccurrenceSearch::Counts::Add(const Counts& iOther) {
    for (std::size_t kind = 0; kind < byKind.size(); ++kind) {
        byKind[kind] += iOther.byKind[kind];
    }
}

VXMOccurrenceSearch::VXMOccurrenceSearch(const VXMUnrolledSteps& iPlaces, const std::vector<int>& iLeft,
                                         VXMPathTree& ioTree)
    : _places(iPlaces), _tree(ioTree), _turns(iLeft.size()), _slots(iLeft.size(), kNone) {
    for (std::size_t turn = 0; turn < iLeft.size(); ++turn) {
        _turns[iLeft[turn]] = static_cast<int>(turn);
    }
    ListFollowers();
}

void VXMOccurrenceSearch::ListFollowers() {
    const int size = _places.Size();
    _followersBegin.assign(static_cast<std::size_t>(size) + 1, 0);
    for (int place = 0; place < size; ++place) {
        for (const int before : _places.Before(place)) {
            ++_followersBegin[before + 1];
        }
    }
    for (int place = 1; place <= size; ++place) {
        _followersBegin[place] += _followersBegin[place - 1];
    }
    _followers.resize(_followersBegin.back());
    std::vector<int> next(_followersBegin.begin(), _followersBegin.end() - 1);
    for (int place = 0; place < size; ++place) {
        for (const int before : _places.Before(place)) {
            _followers[next[before]++] = place;
        }
    }
}

/// The places of the entries and all that follows them.
void VXMOccurrenceSearch::CollectPlaces(std::span<const Listed> iListed) {
    for (const int place : _reached) {
        _slots[place] = kNone;
    }
    _reached.clear();
    const auto take = [this](int iPlace) {
        if (_slots[iPlace] == kNone) {
            _slots[iPlace] = 0;
            _reached.push_back(iPlace);
        }
    };
    for (const Listed& listed : iListed) {
        take(listed.place);
    }
    for (std::size_t index = 0; index < _reached.size(); ++index) {
        const int place = _reached[index];
        for (int follower = _followersBegin[place]; follower < _followersBegin[place + 1]; ++follower) {
            take(_followers[follower]);
        }
    }
    std::sort(_reached.begin(), _reached.end(),
              [this](int iLeft, int iRight) { return _turns[iLeft] < _turns[iRight]; });
}

std::span<const VXMOccurrenceSearch::Listed> VXMOccurrenceSearch::OwnOf(int iPlace) const {
    const auto isBefore = [](const Listed& iListed, int iOther) {
        return iListed.place < iOther;
    };
    const auto begin = std::lower_bound(_listed.begin(), _listed.end(), iPlace, isBefore);
    const auto end = std::lower_bound(begin, _listed.end(), iPlace + 1, isBefore);
    return {begin, end};
}

void VXMOccurrenceSearch::Count(std::span<const Listed> iListed) {
    _listed = iListed;
    CollectPlaces(iListed);
    _counts.assign(_reached.size(), Counts());
    for (std::size_t slot = 0; slot < _reached.size(); ++slot) {
        QORWork::Step();
        const int place = _reached[slot];
        Counts& counts = _counts[slot];
        _slots[place] = static_cast<int>(slot);
        for (const Listed& listed : OwnOf(place)) {
            if (IsCounted(KindOf(listed))) {
                counts[KindOf(listed)] += 1;
            }
        }
        for (const int before : _places.Before(place)) {
            if (_slots[before] != kNone) {
                counts.Add(_counts[_slots[before]]);
            }
        }
    }
}

VXMOccurrenceSearch::Counts VXMOccurrenceSearch::KeepOne(unsigned iKinds, VXMNatural iPlace) {
    Counts passed;
    int place = 0;
    int node = VXMPathTree::kRoot;
    while (true) {
        QORWork::Step();
        for (const Listed& listed : OwnOf(place)) {
            const Kind kind = KindOf(listed);
            if ((kind & iKinds) != 0) {
                iPlace -= 1;
                if (iPlace == 0) {
                    _tree.Keep(node, listed.entry);
                    return passed;
                }
            }
            if (IsCounted(kind)) {
                passed[kind] += 1;
            }
        }
        const std::span<const int> before = _places.Before(place);
        std::size_t position = 0;
        for (;; ++position) {
            const int slot = _slots[before[position]];
            if (slot == kNone) {
                continue;
            }
            const VXMNatural count = _counts[slot].Sum(iKinds);
            if (iPlace <= count) {
                break;
            }
            iPlace -= count;
            passed.Add(_counts[slot]);
        }
        node = _tree.GoOn(node, static_cast<int>(position));
        place = before[position];
    }
}
