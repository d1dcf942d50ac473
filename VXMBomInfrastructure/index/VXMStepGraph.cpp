#include "VXMBomInfrastructure/index/VXMStepGraph.h"

#include <algorithm>

namespace {

constexpr int kNone = -1;

} // namespace

/// One walk through all steps that finds those which reach each other: a step, and all that were met since it, make a
/// group when none of them reaches a step that was met before it and has no group yet. Groups are closed from the
/// starts of the flow to its end, so that what is before a group is known when it is closed.
class VXMStepGraph::LoopSearch {
public:
    explicit LoopSearch(VXMStepGraph& ioGraph) : _graph(ioGraph), _met(ioGraph._steps.size(), 0), _lowest(_met) {}

    void Run(int iEnd) {
        Meet(iEnd);
        while (!_visits.empty()) {
            const int step = _visits.back().step;
            const std::span<const int> before = _graph.PredecessorsOf(step);
            if (_visits.back().next == before.size()) {
                Leave(step);
                continue;
            }
            const int next = before[_visits.back().next++];
            if (_met[next] == 0) {
                Meet(next);
            } else if (_graph._group[next] == kNone) {
                _lowest[step] = std::min(_lowest[step], _met[next]);
            }
        }
    }

private:
    struct Visit {
        int step;
        std::size_t next; // of its predecessors
    };

    void Meet(int iStep) {
        _met[iStep] = _lowest[iStep] = ++_count;
        _open.push_back(iStep);
        _visits.push_back({iStep, 0});
    }

    void Leave(int iStep) {
        _visits.pop_back();
        if (!_visits.empty()) {
            int& lowest = _lowest[_visits.back().step];
            lowest = std::min(lowest, _lowest[iStep]);
        }
        if (_lowest[iStep] == _met[iStep]) {
            CloseGroup(iStep);
        }
    }

    void CloseGroup(int iFirst) {
        const auto begin = std::find(_open.rbegin(), _open.rend(), iFirst).base() - 1;
        for (auto step = begin; step != _open.end(); ++step) {
            _graph._group[*step] = _groups;
        }
        const bool isLarge = _open.end() - begin > 1;
        bool isFruitful = false;
        for (auto step = begin; step != _open.end(); ++step) {
            const std::span<const int> before = _graph.PredecessorsOf(*step);
            _graph._isOnLoop[*step] = isLarge || std::find(before.begin(), before.end(), *step) != before.end();
            if (std::any_of(before.begin(), before.end(), [&](int iBefore) { return IsFedBy(iBefore); })) {
                _graph._feeds[*step] = true;
            }
            isFruitful = isFruitful || _graph._feeds[*step];
        }
        for (auto step = begin; step != _open.end(); ++step) {
            _graph._fruitful[*step] = isFruitful;
        }
        _open.erase(begin, _open.end());
        ++_groups;
    }

    bool IsFedBy(int iBefore) const { return _graph._group[iBefore] != _groups && _graph._fruitful[iBefore]; }

    VXMStepGraph& _graph;
    std::vector<int> _met;    // by number: the how manieth it was, 0 for not yet
    std::vector<int> _lowest; // by number: the earliest step without group that is reached from it, as far as is known
    std::vector<Visit> _visits;
    std::vector<int> _open; // steps without group, in the order in which they were met
    int _count = 0;
    int _groups = 0;
};

VXMStepGraph::VXMStepGraph(VXMStepNumbers& ioNumbers, VXMFabFlowNode& iEnd,
                           const std::function<bool(VXMFabFlowNode&)>& iBringsProducts)
    : _numbers(ioNumbers) {
    _isTree = Collect(iEnd);
    if (_isTree) {
        _steps.clear();
        return;
    }
    ListPredecessors();
    const std::size_t size = _steps.size();
    _feeds.assign(size, false);
    for (std::size_t step = 0; step < size; ++step) {
        _feeds[step] = _steps[step] && iBringsProducts(*_steps[step]);
    }
    _fruitful.assign(size, false);
    _isOnLoop.assign(size, false);
    _group.assign(size, kNone);
    LoopSearch(*this).Run(_numbers.NumberOf(iEnd));
    _hasLoop = std::find(_isOnLoop.begin(), _isOnLoop.end(), true) != _isOnLoop.end();
}

/// Gathers the steps before the end; true when it comes to each of them once.
bool VXMStepGraph::Collect(VXMFabFlowNode& iEnd) {
    bool isTree = true;
    std::vector<VXMFabFlowNode*> pending;
    const auto take = [&](VXMFabFlowNode& iStep) {
        const int number = _numbers.NumberOf(iStep);
        if (number >= static_cast<int>(_steps.size())) {
            _steps.resize(_numbers.Size(), nullptr);
        }
        if (_steps[number]) {
            isTree = false;
        } else {
            _steps[number] = &iStep;
            pending.push_back(&iStep);
        }
    };
    take(iEnd);
    while (!pending.empty()) {
        const VXMFabFlowNode& step = *pending.back();
        pending.pop_back();
        const int count = step.GetNumberOfPredecessors();
        for (int position = 1; position <= count; ++position) {
            if (VXMFabFlowNode* const before = step.GetPredecessor(position)) {
                take(*before);
            }
        }
    }
    return isTree;
}

void VXMStepGraph::ListPredecessors() {
    _begin.reserve(_steps.size() + 1);
    for (const VXMFabFlowNode* const step : _steps) {
        _begin.push_back(static_cast<int>(_predecessors.size()));
        const int count = step ? step->GetNumberOfPredecessors() : 0;
        for (int position = 1; position <= count; ++position) {
            if (const VXMFabFlowNode* const before = step->GetPredecessor(position)) {
                _predecessors.push_back(_numbers.NumberOf(*before));
            }
        }
    }
    _begin.push_back(static_cast<int>(_predecessors.size()));
}
