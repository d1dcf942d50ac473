#include "VXMBomInfrastructure/index/VXMPlaces.h"

#include <algorithm>
#include <bit>
#include <cstdint>

namespace {

constexpr int kNoPlace = -1;
constexpr int kShortList = 16; // up to this length a search from the front is as fast
constexpr int kNear = 16;      // and so is one up to here on both sides of the node that was found last

} // namespace

/// What a list knows of itself once nodes leave it: where each node stands, which place a position has, and how many
/// places are taken. Places keep their numbers until the gaps are closed.
class VXMPlaces::Gaps {
public:
    explicit Gaps(Nodes& ioNodes) : _nodes(ioNodes), _taken(static_cast<int>(ioNodes.size())) {}

    int CountTaken() const { return _taken; }

    /// The place of a position that lies between 1 and the number of taken places. Goes from the place asked for last,
    /// or from the front where that is nearer.
    int PlaceAt(int iPosition) {
        if (iPosition < _latestPosition - iPosition) {
            GoToFront();
        }
        for (; _latestPosition < iPosition; ++_latestPosition) {
            _latestPlace = NextTaken(_latestPlace + 1);
        }
        for (; _latestPosition > iPosition; --_latestPosition) {
            do {
                --_latestPlace;
            } while (!_nodes[_latestPlace]);
        }
        return _latestPlace;
    }

    int PlaceOf(const VXMFabMBOMNode* iNode, bool iMayRepeat) {
        const int near = iMayRepeat ? kNoPlace : FindNear(iNode);
        const int place = near == kNoPlace ? Find(iNode) : near;
        _latestFound = place == kNoPlace ? _latestFound : place;
        return place;
    }

    void TakeLast() {
        const auto places = static_cast<int>(_nodes.size());
        if (places * 2 > static_cast<int>(_table.size())) {
            _table.clear();
        } else {
            Enter(places - 1);
        }
        ++_taken;
    }

    void Leave(int iPlace) {
        _nodes[iPlace] = nullptr; // what the table says of the place is void from now on
        --_taken;
        if (iPlace < _latestPlace) {
            --_latestPosition;
        } else if (iPlace == _latestPlace) {
            _latestPlace = NextTaken(iPlace);
        }
        if (_taken * 2 < static_cast<int>(_nodes.size())) {
            Close();
        }
    }

private:
    int FindNear(const VXMFabMBOMNode* iNode) const {
        const int first = std::max(_latestFound - kNear, 0);
        const int last = std::min(_latestFound + kNear, static_cast<int>(_nodes.size()));
        for (int place = first; place < last; ++place) {
            if (_nodes[place] == iNode) {
                return place;
            }
        }
        return kNoPlace;
    }

    int Find(const VXMFabMBOMNode* iNode) {
        if (_table.empty()) {
            MakeTable();
        }
        if (_hasRepeats) {
            const auto found = std::find(_nodes.begin(), _nodes.end(), iNode);
            return found == _nodes.end() ? kNoPlace : static_cast<int>(found - _nodes.begin());
        }
        return _table[SlotOf(iNode)];
    }

    int NextTaken(int iPlace) const {
        const auto places = static_cast<int>(_nodes.size());
        while (iPlace < places && !_nodes[iPlace]) {
            ++iPlace;
        }
        return iPlace;
    }

    void GoToFront() {
        _latestPosition = 0;
        _latestPlace = kNoPlace;
    }

    /// Each close is paid for by the nodes that have left since the one before.
    void Close() {
        _latestPlace -= CountEmpty(_latestPlace + 1);
        _latestFound -= CountEmpty(_latestFound);
        std::erase(_nodes, nullptr);
        _table.clear();
    }

    int CountEmpty(int iPlaces) const {
        const auto end = _nodes.begin() + std::min<std::ptrdiff_t>(iPlaces, std::ssize(_nodes));
        return static_cast<int>(std::count(_nodes.begin(), end, nullptr));
    }

    void MakeTable() {
        _table.assign(std::bit_ceil(_nodes.size() * 2 + 2), kNoPlace);
        _hasRepeats = false;
        for (int place = 0; place < static_cast<int>(_nodes.size()); ++place) {
            if (_nodes[place]) {
                Enter(place);
            }
        }
    }

    void Enter(int iPlace) {
        int& entry = _table[SlotOf(_nodes[iPlace])];
        if (entry == kNoPlace) {
            entry = iPlace;
        } else {
            _hasRepeats = true;
        }
    }

    /// Where the table tells of the node, or where it would.
    std::size_t SlotOf(const VXMFabMBOMNode* iNode) const {
        const std::size_t mask = _table.size() - 1;
        std::size_t slot = (reinterpret_cast<std::uintptr_t>(iNode) * 0x9E3779B97F4A7C15U >> 20U) & mask;
        while (_table[slot] != kNoPlace && _nodes[_table[slot]] != iNode) {
            slot = (slot + 1) & mask;
        }
        return slot;
    }

    Nodes& _nodes;
    std::vector<int, QORLargeAllocator<int>> _table; // places, found by a hash of the node's address; may be missing
    int _taken;
    int _latestFound = 0;    // place of the node that was found last, or about there
    int _latestPosition = 0; // and its place: what was asked for last
    int _latestPlace = kNoPlace;
    bool _hasRepeats = false;
};

VXMPlaces::VXMPlaces() = default;
VXMPlaces::~VXMPlaces() = default;

int VXMPlaces::Size() const {
    return _gaps ? _gaps->CountTaken() : static_cast<int>(_nodes.size());
}

VXMFabMBOMNode* VXMPlaces::operator[](int iPosition) const {
    if (iPosition < 1 || iPosition > Size()) {
        return nullptr;
    }
    return _nodes[_gaps ? _gaps->PlaceAt(iPosition) : iPosition - 1];
}

void VXMPlaces::Append(VXMFabMBOMNode* iNode, Entry iEntry) {
    _nodes.push_back(iNode);
    if (_gaps) {
        _gaps->TakeLast();
    }
    _mayRepeat = _mayRepeat || iEntry == Entry::MaybeAgain;
}

VXMPlaces::Gaps& VXMPlaces::OpenGaps() const {
    if (!_gaps) {
        _gaps = std::make_unique<Gaps>(_nodes);
    }
    return *_gaps;
}

int VXMPlaces::PlaceOf(const VXMFabMBOMNode* iNode) const {
    if (_gaps || Size() > kShortList) {
        return OpenGaps().PlaceOf(iNode, _mayRepeat);
    }
    const auto found = std::find(_nodes.begin(), _nodes.end(), iNode);
    return found == _nodes.end() ? kNoPlace : static_cast<int>(found - _nodes.begin());
}

bool VXMPlaces::Holds(const VXMFabMBOMNode* iNode) const {
    return iNode && PlaceOf(iNode) != kNoPlace;
}

bool VXMPlaces::RemoveValue(const VXMFabMBOMNode* iNode) {
    const int place = iNode ? PlaceOf(iNode) : kNoPlace;
    if (place == kNoPlace) {
        return false;
    }
    if (_gaps) {
        _gaps->Leave(place);
    } else {
        _nodes.erase(_nodes.begin() + place);
    }
    return true;
}

void VXMPlaces::RemovePosition(int iPosition) {
    if (iPosition < 1 || iPosition > Size()) {
        return;
    }
    if (_gaps || Size() > kShortList) {
        Gaps& gaps = OpenGaps();
        gaps.Leave(gaps.PlaceAt(iPosition));
    } else {
        _nodes.erase(_nodes.begin() + (iPosition - 1));
    }
}

void VXMPlaces::RemoveAll() {
    _gaps.reset();
    _nodes.clear();
    _mayRepeat = false;
}
