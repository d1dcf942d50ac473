#pragma once

#include "QORPlatform/framework/QORBaseUnknown.h"

#include <unordered_map>

/// Visits of children that are under way, each from the registration of its node to the end of its walk.
///
/// Meeting the same child again below, with no object having got its first node in between, would go round for ever: a
/// parent that is linked to its own child does it.
class VXMChildVisits {
public:
    /// One visit, for as long as it lives. iObjects is the number of objects that have a node.
    class Visit {
    public:
        Visit(VXMChildVisits& ioVisits, const QORBaseUnknown* iChild, std::size_t iObjects)
            : _visits(ioVisits), _child(iChild), _outer(ioVisits._underWay[iChild]) {
            _visits._underWay[iChild] = iObjects;
        }
        ~Visit() {
            if (_outer == 0) {
                _visits._underWay.erase(_child);
            } else {
                _visits._underWay[_child] = _outer;
            }
        }
        Visit(const Visit&) = delete;
        Visit& operator=(const Visit&) = delete;

    private:
        VXMChildVisits& _visits;
        const QORBaseUnknown* _child;
        std::size_t _outer; // of a visit of the same child further up, 0 for none
    };

    bool WouldGoRound(const QORBaseUnknown* iChild, std::size_t iObjects) const {
        const auto visit = _underWay.find(iChild);
        return visit != _underWay.end() && visit->second == iObjects;
    }

private:
    std::unordered_map<const QORBaseUnknown*, std::size_t> _underWay; // objects that had a node at its start
};
