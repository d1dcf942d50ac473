#pragma once

#include "QORPlatform/framework/QORBaseUnknown.h"
#include "VXMBomInfrastructure/index/VXMByObject.h"

#include <cstddef>
#include <utility>

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
            : _visits(ioVisits), _child(iChild), _outer(std::exchange(ioVisits._underWay[iChild], iObjects)) {}
        ~Visit() {
            if (_outer == 0) {
                _visits._underWay.Remove(_child);
            } else {
                *_visits._underWay.Find(_child) = _outer;
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
        const std::size_t* const visit = _underWay.Find(iChild);
        return visit && *visit == iObjects;
    }

private:
    VXMByObject<std::size_t> _underWay; // objects that had a node at its start
};
