#include "VXMBomInfrastructure/generation/VXMBackwardWalk.h"

VXMBackwardWalk::OnPath::OnPath(VXMBackwardWalk& ioWalk, const VXMFabFlowNode& iStep)
    : _walk(ioWalk), _number(ioWalk._numbers.NumberOf(iStep)) {
    if (_number >= static_cast<int>(_walk._isOnPath.size())) {
        _walk._isOnPath.resize(_walk._numbers.Size(), false);
    }
    _walk._isOnPath[_number] = true;
}

bool VXMBackwardWalk::Enters(const VXMFabFlowNode* iStep) {
    if (!iStep) {
        return true;
    }
    const int number = _numbers.NumberOf(*iStep);
    if (number < static_cast<int>(_isOnPath.size()) && _isOnPath[number]) {
        return false;
    }
    return !_fruitful || !_fruitful->MayPassOver(*iStep, _isOnPath);
}
