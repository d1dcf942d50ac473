#include "VXMBomInfrastructure/index/VXMUnrolledSteps.h"

#include "QORPlatform/toolkit/QORProgress.h"
#include "VXMBomInfrastructure/index/VXMOpenWays.h"

namespace {

constexpr int kNone = -1;

} // namespace

class VXMUnrolledSteps::Unrolling {
public:
    Unrolling(VXMUnrolledSteps& ioPlaces, const VXMStepGraph& iGraph, std::uint64_t iMost)
        : _places(ioPlaces), _graph(iGraph), _most(iMost), _ways(iGraph), _entered(iGraph.Size(), kNone) {}

    void Run(int iEnd) {
        Enter(iEnd);
        while (!_pending.empty() && !_places._isTooLarge) {
            const int place = _pending.back();
            _pending.pop_back();
            TakeWays(place);
        }
        SortLinks();
    }

private:
    struct Link {
        int place;
        int before;
    };
    struct Visit {
        int place;
        std::size_t next; // of the predecessors of its step
    };

    int Make(int iStep) {
        QORWork::Step();
        _places._isTooLarge = _places._isTooLarge || _places._steps.size() >= _most;
        _places._steps.push_back(iStep);
        return _places.Size() - 1;
    }

    /// The place of a step that the walk comes to from outside its loop.
    int Enter(int iStep) {
        if (_entered[iStep] == kNone) {
            _entered[iStep] = Make(iStep);
            _pending.push_back(_entered[iStep]);
        }
        return _entered[iStep];
    }

    /// Spells out the ways within the loop, which from a step on none is that step alone.
    void TakeWays(int iPlace) {
        Open(iPlace);
        while (!_way.empty() && !_places._isTooLarge) {
            const int place = _way.back().place;
            const int step = _places._steps[place];
            const std::span<const int> before = _graph.PredecessorsOf(step);
            if (_way.back().next == before.size()) {
                _ways.Leave(step);
                _way.pop_back();
                continue;
            }
            const int next = before[_way.back().next++];
            if (!_graph.AreOnOneLoop(step, next)) {
                if (_graph.IsFruitful(next)) {
                    _links.push_back({place, Enter(next)});
                }
            } else if (!_ways.IsOnPath(next) && !_ways.MayPassOver(next)) {
                _links.push_back({place, Make(next)});
                Open(_links.back().before);
            }
        }
    }

    void Open(int iPlace) {
        _way.push_back({iPlace, 0});
        _ways.Enter(_places._steps[iPlace]);
    }

    void SortLinks() {
        _places._begin.assign(_places._steps.size() + 1, 0);
        for (const Link& link : _links) {
            ++_places._begin[link.place + 1];
        }
        for (std::size_t place = 1; place < _places._begin.size(); ++place) {
            _places._begin[place] += _places._begin[place - 1];
        }
        std::vector<int> next(_places._begin.begin(), _places._begin.end() - 1);
        _places._before.resize(_links.size());
        for (const Link& link : _links) {
            _places._before[next[link.place]++] = link.before;
        }
    }

    VXMUnrolledSteps& _places;
    const VXMStepGraph& _graph;
    std::uint64_t _most;
    VXMOpenWays _ways;
    std::vector<int> _entered; // by step number: its place when entered from outside its loop
    std::vector<int> _pending;
    std::vector<Visit> _way;
    std::vector<Link> _links;
};

VXMUnrolledSteps::VXMUnrolledSteps(const VXMStepGraph& iGraph, int iEnd, std::uint64_t iMost) {
    Unrolling(*this, iGraph, iMost).Run(iEnd);
}

/// A walk that enters each place once comes to it on its first path; taken backwards, on its last one. The order of
/// paths is then that of entering, or of leaving, since the walk has left a place before it comes to it again.
VXMUnrolledSteps::Paths VXMUnrolledSteps::VisitOnce(bool iBackwards) const {
    const std::size_t size = _steps.size();
    Paths paths{std::vector<int>(size, kNone), std::vector<int>(size, kNone), std::vector<int>(size, kNone), {}};
    std::vector<bool> isMet(size, false);
    struct Visit {
        int place;
        int next;
    };
    std::vector<Visit> visits;
    int entered = 0;
    const auto enter = [&](int iPlace) {
        isMet[iPlace] = true;
        paths.order[iPlace] = entered++;
        visits.push_back({iPlace, 0});
    };
    paths.left.reserve(size);
    enter(0);
    while (!visits.empty()) {
        const int place = visits.back().place;
        const std::span<const int> before = Before(place);
        const int turn = visits.back().next++;
        const auto count = static_cast<int>(before.size());
        if (turn == count) {
            if (iBackwards) {
                paths.order[place] = static_cast<int>(paths.left.size());
            }
            paths.left.push_back(place);
            visits.pop_back();
            continue;
        }
        const int position = iBackwards ? count - 1 - turn : turn;
        if (!isMet[before[position]]) {
            paths.from[before[position]] = place;
            paths.position[before[position]] = position;
            enter(before[position]);
        }
    }
    return paths;
}
