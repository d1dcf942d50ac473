#pragma once

#include <vector>

class VXMFabFlowNode;

/// Tells which steps of a flow graph the backward walk of an untraced build may pass over: those that bring nothing
/// into the bill themselves and have nothing before them that does. The walk takes a step once per path, so forks and
/// joins among such steps alone would cost their number of paths and make nothing.
class VXMFruitfulSteps {
public:
    /// Looks at everything before iEnd. iBringsProducts(node) tells whether a step's own lists are taken.
    template <class BringsProducts>
    VXMFruitfulSteps(VXMFabFlowNode* iEnd, BringsProducts iBringsProducts) {
        if (!Collect(iEnd)) {
            return;
        }
        for (int index = 0; index < static_cast<int>(_steps.size()); ++index) {
            if (iBringsProducts(_steps[index])) {
                MarkAhead(index);
            }
        }
    }
    VXMFruitfulSteps(const VXMFruitfulSteps&) = delete;
    VXMFruitfulSteps& operator=(const VXMFruitfulSteps&) = delete;

    bool MayPassOver(const VXMFabFlowNode* iNode) const;

private:
    bool Collect(VXMFabFlowNode* iEnd);
    void IndexFollowers();
    void MarkAhead(int iIndex);

    std::vector<VXMFabFlowNode*> _steps; // everything before the end, empty when there is no join among it
    std::vector<int> _followersBegin;    // by step: where its followers begin in _followers
    std::vector<int> _followers;
    std::vector<bool> _fruitful;
};
