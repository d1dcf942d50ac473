// The steps before the end without loops: what lies on a loop stands once for each way that the walk takes to it from
// where it enters the loop, everything else once.
//
// In place of: asking at each step whether it is on the present path.
// Why the same: within steps that reach each other, the ways that come past no step twice are spelt out, from each step
// at which the walk can enter them; what stands before them outside is the same for each way, since from there no way
// leads back. Steps from which the walk would reach nothing are left out (VXMOpenWays).
// What it gains: paths can be counted and the first and last one found, by looking at each step once. Ways through a
// loop are as many as the walk would make nodes for, so nothing is lost.

#pragma once

#include "VXMBomInfrastructure/index/VXMStepGraph.h"

#include <cstdint>
#include <limits>

/// Places are numbered from 0, the end, without order. Every place can be reached from the end.
class VXMUnrolledSteps {
public:
    /// Stops when there are more places than iMost.
    VXMUnrolledSteps(const VXMStepGraph& iGraph, int iEnd, std::uint64_t iMost);
    VXMUnrolledSteps(const VXMUnrolledSteps&) = delete;
    VXMUnrolledSteps& operator=(const VXMUnrolledSteps&) = delete;

    /// Whether there are more than so many; nothing else may be asked then but the places that there are.
    bool IsTooLarge() const { return _isTooLarge; }

    int Size() const { return static_cast<int>(_steps.size()); }
    int StepAt(int iPlace) const { return _steps[iPlace]; }

    /// The places before one, in predecessor order.
    std::span<const int> Before(int iPlace) const {
        return std::span(_before).subspan(_begin[iPlace], _begin[iPlace + 1] - _begin[iPlace]);
    }

    /// One path to each place: the first, or the last, of those on which the walk comes to it.
    struct Paths {
        std::vector<int> order;    ///< by place: how the paths follow each other, or, the last ones, follow backwards
        std::vector<int> from;     ///< by place: the place before it on that path, -1 for the end
        std::vector<int> position; ///< by place: where it stands among those before that
        std::vector<int> left;     ///< all places, each behind everything that is before it
    };
    Paths FirstPaths() const { return VisitOnce(false); }
    Paths LastPaths() const { return VisitOnce(true); }

    /// As many as can be counted so; a number that isn't smaller may be larger.
    static constexpr std::uint64_t kManyPaths = std::numeric_limits<std::uint64_t>::max() / 4;

    /// The number of paths from the end to each place, in Number, with iAdd(sum, number) as the sum. iLeft is that of
    /// Paths.
    template <class Number, class Add>
    std::vector<Number> CountPaths(const std::vector<int>& iLeft, Add iAdd) const {
        std::vector<Number> paths(_steps.size());
        paths[0] = 1;
        for (auto place = iLeft.rbegin(); place != iLeft.rend(); ++place) {
            for (const int before : Before(*place)) {
                iAdd(paths[before], paths[*place]);
            }
        }
        return paths;
    }

private:
    class Unrolling;

    Paths VisitOnce(bool iBackwards) const;

    std::vector<int> _steps;  // by place: number of the step
    std::vector<int> _begin;  // by place: where those before it begin in _before
    std::vector<int> _before; // in predecessor order
    bool _isTooLarge = false;
};
