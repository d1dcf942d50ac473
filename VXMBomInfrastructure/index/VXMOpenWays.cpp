#include "VXMBomInfrastructure/index/VXMOpenWays.h"

VXMOpenWays::VXMOpenWays(const VXMStepGraph& iGraph) : _graph(iGraph), _steps(iGraph.HasLoop() ? iGraph.Size() : 0) {}

void VXMOpenWays::Enter(int iStep) {
    if (static_cast<std::size_t>(iStep) < _steps.size()) {
        _steps[iStep].turn = ++_entered;
    }
}

void VXMOpenWays::Leave(int iStep) {
    if (static_cast<std::size_t>(iStep) < _steps.size()) {
        _steps[iStep].turn = 0;
    }
}

bool VXMOpenWays::MayPassOver(int iStep) {
    return !_graph.IsFruitful(iStep) || (_graph.IsOnLoop(iStep) && !LeadsToProducts(iStep));
}

/// Whether a step that brings products, or one from which the walk leaves the loop for such steps, can be reached from
/// this one without coming past the present path. As long as the walk follows the way that a search has found, no
/// further search is made.
bool VXMOpenWays::LeadsToProducts(int iStep) {
    if (!_way.empty() && _way.back() == iStep) {
        _way.pop_back();
        return true;
    }
    if (IsShut(_steps[iStep])) {
        return false;
    }
    _way.clear();
    ++_search;
    _met.assign(1, iStep);
    _steps[iStep].search = _search;
    int shutBy = iStep;
    Turn shutByTurn = 0;
    const auto isShutBy = [&](int iOther) {
        if (_steps[iOther].turn > shutByTurn) {
            shutBy = iOther;
            shutByTurn = _steps[iOther].turn;
        }
    };
    for (std::size_t index = 0; index < _met.size(); ++index) {
        int step = _met[index];
        if (_graph.Feeds(step)) {
            for (; step != iStep; step = _steps[step].cameFrom) {
                _way.push_back(step);
            }
            return true;
        }
        for (const int before : _graph.PredecessorsOf(step)) {
            Step& next = _steps[before];
            if (!_graph.AreOnOneLoop(before, iStep)) {
                continue;
            }
            if (next.turn > 0) {
                isShutBy(before);
            } else if (IsShut(next)) {
                isShutBy(next.shutBy);
            } else if (next.search != _search) {
                next.search = _search;
                next.cameFrom = step;
                _met.push_back(before);
            }
        }
    }
    for (const int met : _met) {
        _steps[met].shutBy = shutBy;
        _steps[met].shutByTurn = shutByTurn;
    }
    return false;
}
