#include "generation/VXMFruitfulSteps.h"

#include "nodes/VXMFabFlowNode.h"

/// Gathers the steps before the end; false, and nothing gathered, when no step is joined, so that there is nothing to
/// gain.
bool VXMFruitfulSteps::Collect(VXMFabFlowNode* iEnd) {
    bool hasJoin = false;
    const auto take = [this](VXMFabFlowNode* iNode) {
        if (iNode && (iNode->_fruitfulIndex < 0 || iNode->_fruitfulIndex >= static_cast<int>(_steps.size()) ||
                      _steps[iNode->_fruitfulIndex] != iNode)) {
            iNode->_fruitfulIndex = static_cast<int>(_steps.size());
            _steps.push_back(iNode);
        }
    };
    take(iEnd);
    for (std::size_t index = 0; index < _steps.size(); ++index) {
        const VXMFabFlowNode* const step = _steps[index];
        hasJoin = hasJoin || step->GetNumberOfPredecessors() > 1;
        for (int position = 1; position <= step->GetNumberOfPredecessors(); ++position) {
            take(step->GetPredecessor(position));
        }
    }
    if (!hasJoin) {
        _steps.clear();
        return false;
    }
    IndexFollowers();
    return true;
}

void VXMFruitfulSteps::IndexFollowers() {
    const auto forEachLink = [this](auto iLink) {
        for (int follower = 0; follower < static_cast<int>(_steps.size()); ++follower) {
            for (int position = 1; position <= _steps[follower]->GetNumberOfPredecessors(); ++position) {
                if (const VXMFabFlowNode* const step = _steps[follower]->GetPredecessor(position)) {
                    iLink(step->_fruitfulIndex, follower);
                }
            }
        }
    };
    _fruitful.assign(_steps.size(), false);
    _followersBegin.assign(_steps.size() + 1, 0);
    forEachLink([this](int iStep, int) { ++_followersBegin[iStep + 1]; });
    for (std::size_t index = 1; index < _followersBegin.size(); ++index) {
        _followersBegin[index] += _followersBegin[index - 1];
    }
    _followers.resize(_followersBegin.back());
    std::vector<int> next(_followersBegin.begin(), _followersBegin.end() - 1);
    forEachLink([this, &next](int iStep, int iFollower) { _followers[next[iStep]++] = iFollower; });
}

void VXMFruitfulSteps::MarkAhead(int iIndex) {
    std::vector<int> pending{iIndex};
    while (!pending.empty()) {
        const int step = pending.back();
        pending.pop_back();
        if (_fruitful[step]) {
            continue;
        }
        _fruitful[step] = true;
        pending.insert(pending.end(), _followers.begin() + _followersBegin[step],
                       _followers.begin() + _followersBegin[step + 1]);
    }
}

bool VXMFruitfulSteps::MayPassOver(const VXMFabFlowNode* iNode) const {
    return iNode && !_steps.empty() && !_fruitful[iNode->_fruitfulIndex];
}
