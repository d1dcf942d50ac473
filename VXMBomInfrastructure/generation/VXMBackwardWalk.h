#pragma once

#include "VXMBomInfrastructure/index/VXMFruitfulSteps.h"

#include <optional>
#include <vector>

/// A walk over the flow graph from its end towards its starts, by calls that call themselves for what comes before a
/// step. Every step is taken once per path, in predecessor order. Knows the steps that are on the present path, so that
/// loops end: none of them is entered again.
class VXMBackwardWalk {
public:
    explicit VXMBackwardWalk(const QORRawCollPV& iSteps) : _numbers(iSteps) {}
    VXMBackwardWalk(const VXMBackwardWalk&) = delete;
    VXMBackwardWalk& operator=(const VXMBackwardWalk&) = delete;

    /// Lets the walk pass over steps from which it would reach nothing; iBringsProducts(node) tells of a step.
    void PassOverFruitless(VXMFabFlowNode& iEnd, const std::function<bool(VXMFabFlowNode&)>& iBringsProducts) {
        _fruitful.emplace(_numbers, iEnd, iBringsProducts);
    }

    /// A step that is on the path for as long as this lives.
    class OnPath {
    public:
        OnPath(VXMBackwardWalk& ioWalk, const VXMFabFlowNode& iStep);
        ~OnPath() { _walk._isOnPath[_number] = false; }
        OnPath(const OnPath&) = delete;
        OnPath& operator=(const OnPath&) = delete;

    private:
        VXMBackwardWalk& _walk;
        int _number;
    };

    /// Whether the walk goes on to a step; to a null one it does.
    bool Enters(const VXMFabFlowNode* iStep);

private:
    VXMStepNumbers _numbers;
    std::vector<bool> _isOnPath; // by step number
    std::optional<VXMFruitfulSteps> _fruitful;
};
