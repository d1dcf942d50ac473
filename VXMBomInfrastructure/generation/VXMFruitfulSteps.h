#pragma once

#include <vector>

class VXMFabFlowNode;

/// Tells which steps of a flow graph the backward walk of an untraced build may pass over: those from which it would
/// reach nothing that goes into the bill. The walk takes a step once per path, so forks and joins among such steps
/// alone would cost their number of paths and make nothing.
///
/// Without a loop a step is fruitless when neither it nor anything before it brings products. On a loop the products
/// may lie behind a step that the walk has come past, so there it is looked for anew from each step, along ways that
/// the present path leaves open.
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
                _brings[index] = true;
                MarkAhead(index);
            }
        }
    }
    VXMFruitfulSteps(const VXMFruitfulSteps&) = delete;
    VXMFruitfulSteps& operator=(const VXMFruitfulSteps&) = delete;

    /// Asked of a step that isn't on the present path, before the walk enters it.
    bool MayPassOver(const VXMFabFlowNode* iNode);

private:
    bool Collect(VXMFabFlowNode* iEnd);
    void IndexFollowers();
    bool FindLoop() const;
    void MarkAhead(int iIndex);
    bool LeadsToProducts(int iIndex);

    std::vector<VXMFabFlowNode*> _steps; // everything before the end, empty when there is no join among it
    std::vector<int> _followersBegin;    // by step: where its followers begin in _followers
    std::vector<int> _followers;
    std::vector<bool> _brings;   // by step: brings products itself
    std::vector<bool> _fruitful; // by step: it or something before it does
    bool _hasLoop = false;

    std::vector<unsigned> _seen; // by step: the search that has come past it last
    std::vector<int> _cameFrom;  // by step: from where that search came
    unsigned _search = 0;
    std::vector<int> _way; // the rest of the way that the last search found, next step last
};
