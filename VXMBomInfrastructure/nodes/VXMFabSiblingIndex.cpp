#include "VXMBomInfrastructure/nodes/VXMFabSiblingIndex.h"

#include "VXMBomInfrastructure/nodes/VXMFabMBOMNode.h"

namespace {

constexpr int kNoPlace = -1;

} // namespace

VXMFabSiblingIndex::VXMFabSiblingIndex(const VXMFabPlaces& iPlaces) : _places(iPlaces) {
    for (int place = 0; place < _places.End(); ++place) {
        Take(place);
    }
}

void VXMFabSiblingIndex::TakeLast() {
    Take(_places.End() - 1);
}

void VXMFabSiblingIndex::Take(int iPlace) {
    _next.push_back(kNoPlace);
    const VXMFabMBOMNode* const node = _places.At(iPlace);
    if (!node || !node->IsAssignment()) {
        return;
    }
    const auto [place, isNew] = _chains.try_emplace(node->GetID(), Chain{iPlace, iPlace});
    if (!isNew) {
        _next[place->second.last] = iPlace;
        place->second.last = iPlace;
    }
}

int VXMFabSiblingIndex::SkipLeft(int iPlace) const {
    while (iPlace != kNoPlace && !_places.At(iPlace)) {
        iPlace = _next[iPlace];
    }
    return iPlace;
}

VXMFabMBOMNode* VXMFabSiblingIndex::FindAssignment(int iID, const VXMFabMBOMNode* iExcept) {
    const auto place = _chains.find(iID);
    if (place == _chains.end()) {
        return nullptr;
    }
    Chain& chain = place->second;
    const int first = SkipLeft(chain.first);
    if (first == kNoPlace) {
        _chains.erase(place);
        return nullptr;
    }
    chain.first = first;
    int found = first;
    while (_places.At(found) == iExcept) { // more than once only where it was entered more than once
        _next[found] = SkipLeft(_next[found]);
        if (_next[found] == kNoPlace) {
            chain.last = found;
            return nullptr;
        }
        found = _next[found];
    }
    return _places.At(found);
}
