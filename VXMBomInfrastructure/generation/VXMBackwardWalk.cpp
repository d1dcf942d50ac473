#include "VXMBomInfrastructure/generation/VXMBackwardWalk.h"

#include "VXMBomInfrastructure/generation/VXMFlowLists.h"

#include <algorithm>
#include <utility>

void VXMBackwardWalk::Prepare(VXMFabFlowNode& iEnd, const VXMManyPaths::Build& iBuild) {
    const bool showsCalls = iBuild.calls == Calls::Shown;
    _graph.emplace(_numbers, iEnd, [&](VXMFabFlowNode& iStep) {
        return showsCalls || std::any_of(kVXMFlowLists.begin(), kVXMFlowLists.end(), [&](const VXMFlowList& iList) {
                   return (iStep.*iList.count)() > 0 && iBuild.takes(iStep, iList.type);
               });
    });
    if (_graph->IsTree()) {
        return;
    }
    _paths.emplace(*_graph, _numbers.NumberOf(iEnd), iBuild);
    if (_paths->IsThinned()) {
        _next.emplace(*_paths);
        return;
    }
    _paths.reset();
    if (!showsCalls) {
        _ways.emplace(*_graph);
    }
}

VXMBackwardWalk::Visit::Visit(VXMBackwardWalk& ioWalk, VXMFabFlowNode& iStep)
    : _walk(ioWalk), _step(&iStep), _number(ioWalk._numbers.NumberOf(iStep)),
      _thinned(std::exchange(ioWalk._next, std::nullopt)) {
    Enter(_number);
}

VXMBackwardWalk::Visit::~Visit() {
    Leave(_number);
    for (const int number : _passed) {
        Leave(number);
    }
}

void VXMBackwardWalk::Visit::Enter(int iNumber) {
    if (iNumber >= static_cast<int>(_walk._isOnPath.size())) {
        _walk._isOnPath.resize(_walk._numbers.Size(), false);
    }
    _walk._isOnPath[iNumber] = true;
    if (_walk._ways) {
        _walk._ways->Enter(iNumber);
    }
}

void VXMBackwardWalk::Visit::Leave(int iNumber) {
    _walk._isOnPath[iNumber] = false;
    if (_walk._ways) {
        _walk._ways->Leave(iNumber);
    }
}

bool VXMBackwardWalk::Visit::MovesOn(VXMFabFlowNode* iBefore) {
    if (!iBefore || _thinned || _position < _step->GetNumberOfPredecessors()) {
        return false;
    }
    const int number = _walk._numbers.NumberOf(*iBefore);
    _passed.push_back(_number);
    _number = number;
    _step = iBefore;
    _position = 0;
    Enter(number);
    return true;
}

bool VXMBackwardWalk::Visit::GoesOn(VXMFabFlowNode*& oBefore) {
    if (_thinned) {
        _walk._next = _thinned->Next();
        oBefore = _walk._next ? _walk._next->GetStep() : nullptr;
        return oBefore != nullptr;
    }
    while (_position < _step->GetNumberOfPredecessors()) {
        oBefore = _step->GetPredecessor(++_position);
        if (!oBefore || _walk.Enters(*oBefore)) {
            return true;
        }
    }
    return false;
}

bool VXMBackwardWalk::Enters(const VXMFabFlowNode& iStep) {
    const int number = _numbers.NumberOf(iStep);
    if (number < static_cast<int>(_isOnPath.size()) && _isOnPath[number]) {
        return false;
    }
    return !_ways || !_ways->MayPassOver(number);
}
