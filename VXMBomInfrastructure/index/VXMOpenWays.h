// Whether a walk that stands somewhere on loops can still get from a step to one that brings products.
//
// In place of: entering the step and finding out.
// Why the same: the ways that are looked for are those that the walk could take, past no step of its present path. They
// need not leave the loop, more precisely the steps that reach each other (VXMStepGraph). A search that fails has come
// to ends that are shut by the present path, and so has each step that it has met; that stays so until the step of the
// path that was entered last among those that shut it is left. Until then nobody searches from there again.
// What it gains: a search for each way that leads to products, and few others. A loop of 16,000 steps, each of which
// has a second way into 16,000 that lead nowhere but back, takes 0.1 s in place of 3.4.

#pragma once

#include "VXMBomInfrastructure/index/VXMStepGraph.h"

#include <cstdint>
#include <vector>

/// Follows the present path of one walk, by step numbers.
class VXMOpenWays {
public:
    explicit VXMOpenWays(const VXMStepGraph& iGraph);
    VXMOpenWays(const VXMOpenWays&) = delete;
    VXMOpenWays& operator=(const VXMOpenWays&) = delete;

    /// The walk enters a step that isn't on its path; it leaves the steps that it has entered last.
    void Enter(int iStep);
    void Leave(int iStep);

    /// Whether a step that lies on a loop is on the path.
    bool IsOnPath(int iStep) const { return !_steps.empty() && _steps[iStep].turn > 0; }

    /// Whether the walk would reach nothing from a step that isn't on its path, and may pass over it.
    bool MayPassOver(int iStep);

private:
    using Turn = std::uint64_t;

    struct Step {
        Turn turn = 0;       // the how manieth it was that the path entered, 0 off the path
        int shutBy = 0;      // the step of the path that was entered last among those that shut it
        Turn shutByTurn = 0; // its turn then, 0 for a step that isn't known to be shut
        unsigned search = 0; // that has come past it last
        int cameFrom = 0;    // from where that search came
    };

    bool LeadsToProducts(int iStep);
    bool IsShut(const Step& iStep) const {
        return iStep.shutByTurn > 0 && _steps[iStep.shutBy].turn == iStep.shutByTurn;
    }

    const VXMStepGraph& _graph;
    std::vector<Step> _steps; // by number; none when nothing lies on a loop
    Turn _entered = 0;
    unsigned _search = 0;
    std::vector<int> _met; // in a search
    std::vector<int> _way; // the rest of the way that the last search found, next step last
};
