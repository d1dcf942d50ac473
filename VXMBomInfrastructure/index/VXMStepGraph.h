// The steps before the end of a flow, as the backward walk sees them: which are reached on several ways, which lie on
// loops, and from which the walk would reach nothing that goes into the bill, so that it may pass over them.
//
// In place of: entering every step once per path, so that forks and joins among steps that bring nothing cost their
// number of paths and make nothing.
// Why the same: such a step makes no node, and neither does anything that the walk would reach from it; numbers go
// along paths and come back to nobody. A step on no loop is fruitless when neither it nor anything before it brings
// products: nothing that is before it can lie on the present path. On a loop the products may lie behind a step that
// the walk has come past, so there they are looked for along ways that the present path leaves open (VXMOpenWays). Such
// a way need not leave the loop, more precisely the steps that reach each other: whoever leaves them comes to steps
// that reach none of them, and so none of the path.
// What it gains: 18 sections in a row that fork and join without a list take 0.2 ms in place of 75, which double with
// each section more; a line of 40,000 steps, a feeder into each of them and one loop between two take 0.4 s in place of
// 99. A walk that writes a trace shows every call, so it passes over nothing.

#pragma once

#include "VXMBomInfrastructure/index/VXMStepNumbers.h"

#include <functional>
#include <span>
#include <vector>

/// For the length of one backward walk. Steps go by their numbers (VXMStepNumbers).
class VXMStepGraph {
public:
    /// Looks at everything before iEnd. iBringsProducts(node) tells whether a step's own lists are taken.
    VXMStepGraph(VXMStepNumbers& ioNumbers, VXMFabFlowNode& iEnd,
                 const std::function<bool(VXMFabFlowNode&)>& iBringsProducts);
    VXMStepGraph(const VXMStepGraph&) = delete;
    VXMStepGraph& operator=(const VXMStepGraph&) = delete;

    /// Whether the walk reaches every step on one way only. Then nothing else is known of the steps, and nothing is
    /// passed over.
    bool IsTree() const { return _isTree; }

    /// One above the largest number; the step of a number, null for one that isn't before the end; and the numbers of
    /// those before it in their order, null ones left out.
    int Size() const { return static_cast<int>(_steps.size()); }
    VXMFabFlowNode* StepOf(int iStep) const { return _steps[iStep]; }
    std::span<const int> PredecessorsOf(int iStep) const {
        return std::span(_predecessors).subspan(_begin[iStep], _begin[iStep + 1] - _begin[iStep]);
    }

    /// Whether the step or something before it brings products; then a walk that comes to it from none of those that it
    /// reaches doesn't pass over it.
    bool IsFruitful(int iStep) const { return _fruitful[iStep]; }

    /// Whether the step itself brings products, or leads out of its loop to something that does.
    bool Feeds(int iStep) const { return _feeds[iStep]; }

    /// Whether any step lies on a loop; whether this one does; and whether two steps reach each other.
    bool HasLoop() const { return _hasLoop; }
    bool IsOnLoop(int iStep) const { return _isOnLoop[iStep]; }
    bool AreOnOneLoop(int iStep, int iOther) const { return _group[iStep] == _group[iOther]; }

private:
    class LoopSearch;

    bool Collect(VXMFabFlowNode& iEnd);
    void ListPredecessors();

    VXMStepNumbers& _numbers;
    bool _isTree = true;
    std::vector<VXMFabFlowNode*> _steps; // by number, null for one that isn't before the end
    std::vector<int> _begin;             // by number: where its predecessors begin in _predecessors
    std::vector<int> _predecessors;      // in their order, null ones left out
    std::vector<int> _group;             // by number: steps that reach each other are of one group
    std::vector<bool> _isOnLoop;
    bool _hasLoop = false;
    std::vector<bool> _fruitful; // by number: it or something before it brings products
    std::vector<bool> _feeds;    // by number: it does itself, or something before it outside its group
};
