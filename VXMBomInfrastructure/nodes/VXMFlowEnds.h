#pragma once

class VXMFabFlowNode;

/// Finds the end of a flow along first successors.
///
/// A walk asks for it at each second arrival at a node, so nodes remember how far a search has come (a first successor
/// never changes once it is there): all searches together cost about as much as the nodes that they pass. Only the
/// flow's end itself is not remembered, since the flow may still grow there.
class VXMFlowEnds {
public:
    /// The last node along first successors from iNode; where they run into a loop, the node whose first successor the
    /// search has already been at. Null for null, and for a flow that ends in a null successor.
    static VXMFabFlowNode* Find(VXMFabFlowNode* iNode);

private:
    static VXMFabFlowNode* First(const VXMFabFlowNode& iNode);
    static VXMFabFlowNode* RunAhead(VXMFabFlowNode& iNode);
    static void Shorten(VXMFabFlowNode& iNode, VXMFabFlowNode& iEnd);
    static void MarkLoop(VXMFabFlowNode& iOnLoop);
    static VXMFabFlowNode* FindLoopEntry(VXMFabFlowNode& iNode);
};
