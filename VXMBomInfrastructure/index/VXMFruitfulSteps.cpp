#include "VXMBomInfrastructure/index/VXMFruitfulSteps.h"

VXMFruitfulSteps::VXMFruitfulSteps(VXMStepNumbers& ioNumbers, VXMFabFlowNode& iEnd,
                                   const std::function<bool(VXMFabFlowNode&)>& iBringsProducts)
    : _numbers(ioNumbers) {
    if (!Collect(iEnd)) {
        return;
    }
    for (int index = 0; index < static_cast<int>(_steps.size()); ++index) {
        if (iBringsProducts(*_steps[index])) {
            _brings[index] = true;
            MarkAhead(index);
        }
    }
}

/// The place of a step that was gathered.
int VXMFruitfulSteps::IndexOf(const VXMFabFlowNode& iStep) {
    return _indexes[_numbers.NumberOf(iStep)];
}

/// Gathers the steps before the end; false, and nothing gathered, when no step is joined, so that there is nothing to
/// gain.
bool VXMFruitfulSteps::Collect(VXMFabFlowNode& iEnd) {
    bool hasJoin = false;
    const auto take = [this](VXMFabFlowNode& iStep) {
        const int number = _numbers.NumberOf(iStep);
        if (number >= static_cast<int>(_indexes.size())) {
            _indexes.resize(_numbers.Size(), -1);
        }
        if (_indexes[number] < 0) {
            _indexes[number] = static_cast<int>(_steps.size());
            _steps.push_back(&iStep);
        }
    };
    take(iEnd);
    for (std::size_t index = 0; index < _steps.size(); ++index) {
        const VXMFabFlowNode& step = *_steps[index];
        hasJoin = hasJoin || step.GetNumberOfPredecessors() > 1;
        for (int position = 1; position <= step.GetNumberOfPredecessors(); ++position) {
            if (VXMFabFlowNode* const before = step.GetPredecessor(position)) {
                take(*before);
            }
        }
    }
    if (!hasJoin) {
        _steps.clear();
        return false;
    }
    IndexFollowers();
    _hasLoop = FindLoop();
    _brings.assign(_steps.size(), false);
    _fruitful.assign(_steps.size(), false);
    _seen.assign(_hasLoop ? _steps.size() : 0, 0);
    _cameFrom.resize(_seen.size());
    return true;
}

void VXMFruitfulSteps::IndexFollowers() {
    const auto forEachLink = [this](auto iLink) {
        for (int follower = 0; follower < static_cast<int>(_steps.size()); ++follower) {
            for (int position = 1; position <= _steps[follower]->GetNumberOfPredecessors(); ++position) {
                if (const VXMFabFlowNode* const step = _steps[follower]->GetPredecessor(position)) {
                    iLink(IndexOf(*step), follower);
                }
            }
        }
    };
    _followersBegin.assign(_steps.size() + 1, 0);
    forEachLink([this](int iStep, int) { ++_followersBegin[iStep + 1]; });
    for (std::size_t index = 1; index < _followersBegin.size(); ++index) {
        _followersBegin[index] += _followersBegin[index - 1];
    }
    _followers.resize(_followersBegin.back());
    std::vector<int> next(_followersBegin.begin(), _followersBegin.end() - 1);
    forEachLink([this, &next](int iStep, int iFollower) { _followers[next[iStep]++] = iFollower; });
}

/// Takes steps away that have nothing left before them; what can't be taken away lies on or behind a loop.
bool VXMFruitfulSteps::FindLoop() const {
    std::vector<int> left(_steps.size(), 0); // links that come in
    for (const int follower : _followers) {
        ++left[follower];
    }
    std::vector<int> pending;
    for (int index = 0; index < static_cast<int>(_steps.size()); ++index) {
        if (left[index] == 0) {
            pending.push_back(index);
        }
    }
    std::size_t taken = 0;
    for (; !pending.empty(); ++taken) {
        const int step = pending.back();
        pending.pop_back();
        for (int place = _followersBegin[step]; place < _followersBegin[step + 1]; ++place) {
            if (--left[_followers[place]] == 0) {
                pending.push_back(_followers[place]);
            }
        }
    }
    return taken < _steps.size();
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

bool VXMFruitfulSteps::MayPassOver(const VXMFabFlowNode& iStep, const std::vector<bool>& iIsOnPath) {
    if (_steps.empty()) {
        return false;
    }
    const int index = IndexOf(iStep);
    return !_fruitful[index] || (_hasLoop && !LeadsToProducts(index, iIsOnPath));
}

/// Whether a step that brings products can be reached from this one without coming past the present path. As long as
/// the walk follows the way that a search has found, no further search is made.
bool VXMFruitfulSteps::LeadsToProducts(int iIndex, const std::vector<bool>& iIsOnPath) {
    if (!_way.empty() && _way.back() == iIndex) {
        _way.pop_back();
        return true;
    }
    const auto isOnPath = [&](const VXMFabFlowNode& iStep) {
        const int number = _numbers.NumberOf(iStep);
        return number < static_cast<int>(iIsOnPath.size()) && iIsOnPath[number];
    };
    ++_search;
    _way.clear();
    std::vector<int> pending{iIndex};
    _seen[iIndex] = _search;
    while (!pending.empty()) {
        int step = pending.back();
        pending.pop_back();
        if (_brings[step]) {
            for (; step != iIndex; step = _cameFrom[step]) {
                _way.push_back(step);
            }
            return true;
        }
        for (int position = 1; position <= _steps[step]->GetNumberOfPredecessors(); ++position) {
            const VXMFabFlowNode* const before = _steps[step]->GetPredecessor(position);
            if (before && !isOnPath(*before) && _seen[IndexOf(*before)] != _search) {
                _seen[IndexOf(*before)] = _search;
                _cameFrom[IndexOf(*before)] = step;
                pending.push_back(IndexOf(*before));
            }
        }
    }
    return false;
}
