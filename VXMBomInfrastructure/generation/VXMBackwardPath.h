#pragma once

#include "VXMBomInfrastructure/nodes/VXMFabFlowNode.h"

#include <vector>

class VXMFabMBOMNode;

/// The present path of a backward walk: flow nodes from the end of the flow towards its start, each with where the walk
/// stands at it. Nodes are marked while they are on it, so that a loop in the graph is noticed at once.
class VXMBackwardPath {
public:
    struct Frame {
        VXMFabFlowNode* node;
        VXMFabMBOMNode* parent; // under which what comes before the node goes
        int number;             // with which each predecessor starts
        int nextPredecessor = 1;
    };

    VXMBackwardPath() = default;
    VXMBackwardPath(const VXMBackwardPath&) = delete;
    VXMBackwardPath& operator=(const VXMBackwardPath&) = delete;
    ~VXMBackwardPath() {
        while (!IsEmpty()) {
            Leave();
        }
    }

    bool IsEmpty() const { return _frames.empty(); }
    Frame& Top() { return _frames.back(); }
    void Enter(const Frame& iFrame) {
        _frames.push_back(iFrame);
        iFrame.node->_isOnBackwardPath = true;
    }
    void Leave() {
        _frames.back().node->_isOnBackwardPath = false;
        _frames.pop_back();
    }
    static bool Holds(const VXMFabFlowNode* iNode) { return iNode && iNode->_isOnBackwardPath; }

private:
    std::vector<Frame> _frames;
};
