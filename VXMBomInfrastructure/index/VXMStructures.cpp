#include "VXMBomInfrastructure/index/VXMStructures.h"

#include "QORPlatform/framework/QORModelIdentificator.h"
#include "QORPlatform/toolkit/QORProgress.h"

#include <algorithm>

int VXMStructures::IdentityOf(const QORBaseUnknown_var& iObject) {
    return iObject ? QORModelIdentificator(iObject->GetImpl(0)).GetIntId() : -1;
}

bool VXMStructures::AreOne(const QORBaseUnknown_var& iObject, const QORBaseUnknown_var& iOther) {
    return !iObject || !iOther ? !iObject && !iOther : iObject->GetImpl(0) == iOther->GetImpl(0);
}

int VXMStructures::PartOf(const QORBaseUnknown_var& iObject) {
    const int identity = IdentityOf(iObject);
    int& place = _places[identity];
    if (place == 0) {
        _parts.push_back({iObject, identity, {}, State::New, {}});
        place = static_cast<int>(_parts.size());
    }
    _areAmbiguous = _areAmbiguous || !AreOne(_parts[place - 1].object, iObject);
    return place - 1;
}

const VXMStructures::Facts& VXMStructures::Of(const QORBaseUnknown_var& iObject) {
    const int asked = PartOf(iObject);
    if (_parts[asked].state == State::New) {
        Open(asked);
    }
    while (!_visits.empty()) {
        const int part = _visits.back().part;
        if (_visits.back().next == _parts[part].below.size()) {
            _visits.pop_back();
            Close(part);
            continue;
        }
        const int below = _parts[part].below[_visits.back().next++];
        if (_parts[below].state == State::New) {
            Open(below);
        } else if (_parts[below].state == State::Open) {
            _parts[part].facts.holdsItself = true;
        }
    }
    return _parts[asked].facts;
}

void VXMStructures::Open(int iPart) {
    QORWork::Step();
    _parts[iPart].state = State::Open;
    const QORBaseUnknown_var object = _parts[iPart].object; // the parts move when one is added
    std::vector<int> below;
    if (const VXMStructure::List list = VXMStructure::ContentsOf(object, _kind)) {
        for (const QORBaseUnknown_var& part : *list) {
            below.push_back(PartOf(part));
        }
    }
    _parts[iPart].below = std::move(below);
    _visits.push_back({iPart, 0});
}

void VXMStructures::Close(int iPart) {
    Part& part = _parts[iPart];
    part.state = State::Known;
    for (const int below : part.below) {
        const Facts& facts = _parts[below].facts;
        part.facts.height = std::max(part.facts.height, facts.height + 1);
        part.facts.nodes = std::min(part.facts.nodes + facts.nodes, kManyNodes);
        part.facts.holdsItself = part.facts.holdsItself || facts.holdsItself;
        part.facts.holdsMarked =
            part.facts.holdsMarked || facts.holdsMarked || facts.holdsItself || _isMarked(_parts[below].identity);
    }
}

std::vector<int> VXMStructures::PartsOf(const QORBaseUnknown_var& iObject) {
    std::vector<int> parts;
    for (const int part : _parts[PartOf(iObject)].below) {
        parts.push_back(_parts[part].identity);
    }
    return parts;
}

void VXMStructures::VisitBelow(const QORBaseUnknown_var& iObject, const std::function<void(int)>& iVisit) {
    std::vector<int> pending{PartOf(iObject)};
    while (!pending.empty()) {
        Part& part = _parts[pending.back()];
        pending.pop_back();
        if (part.state != State::Visited) {
            part.state = State::Visited;
            iVisit(part.identity);
            pending.insert(pending.end(), part.below.begin(), part.below.end());
        }
    }
}
