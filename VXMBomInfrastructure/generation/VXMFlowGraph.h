#pragma once

#include "QORPlatform/collections/QORRawCollPV.h"
#include "VXMBomInfrastructure/index/VXMByNumber.h"

#include <vector>

class VXMFabFlowNode;

/// The flow graph of one computation with its registries. Owns the registered nodes.
class VXMFlowGraph {
public:
    VXMFlowGraph() = default;
    ~VXMFlowGraph();
    VXMFlowGraph(const VXMFlowGraph&) = delete;
    VXMFlowGraph& operator=(const VXMFlowGraph&) = delete;

    /// Number that the next node gets, from 1.
    int GetCounter() const { return _counter; }
    void IncreaseCounter() { ++_counter; }

    /// Appends a node to the list, which owns it from then on. Null leaves a null entry.
    void Append(VXMFabFlowNode* iNode) { _nodes.Append(iNode); }

    /// Enters a node under its identity number, for Find. Null is ignored, and so is a node whose number has one.
    void Enter(VXMFabFlowNode* iNode);
    VXMFabFlowNode* Find(int iID) const { return _byID.Get(iID); }

    /// All nodes in the order of registration, null entries included, and those that Find gives in the order of entry.
    const QORRawCollPV& GetNodes() const { return _nodes; }
    const std::vector<VXMFabFlowNode*>& GetEntered() const { return _entered; }

    /// The node of the root, null when there is none.
    VXMFabFlowNode* GetFirst() const { return _first; }
    void SetFirst(VXMFabFlowNode* iNode) { _first = iNode; }

    /// Deletes all nodes; the counter stays.
    void Free();

private:
    int _counter = 1;
    QORRawCollPV _nodes;
    VXMByNumber<VXMFabFlowNode*> _byID;
    std::vector<VXMFabFlowNode*> _entered;
    VXMFabFlowNode* _first = nullptr;
};
