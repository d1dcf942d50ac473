#pragma once

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "VXMBomInfrastructure/generation/VXMBomComputation.h"

class VXMBomGenerator;
class VXMFabFlowNode;

/// One call of CheckFlow: what the walks of all kinds of model do alike for one flow node. The order of the steps is
/// behaviour: it decides node numbers, the order of links and so that of the bill.
///
/// Each child's flow starts from the node that came before this one, so that all flows under one parent start side by
/// side; the node itself comes after the last of them.
class VXMFlowWalk {
public:
    /// Who walks from the last successor: this call, by a CheckFlow of its own; or the caller, who finds it in GetNext
    /// and goes on there as that call would have, since nothing follows it here. So a line of steps takes no stack. A
    /// generator that somebody has derived from ours may do more in its CheckFlow, and is called.
    enum class LastSuccessor { Called, LeftToCaller };

    VXMFlowWalk(VXMBomGenerator& ioGenerator, VXMFabFlowNode* iPrevious, VXMFabFlowNode* iCurrent, int iLevel,
                LastSuccessor iLastSuccessor);

    /// Which children stay out of the flow, and what becomes of a successor for which no node can be made.
    enum class Standalone { LeftOut, Walked };
    enum class NullNode { Skipped, Registered };

    /// Visits the children in list order: those that have no node yet are walked from the start of their flow.
    void VisitChildren(const QORListValQORBaseUnknown_var& iChildren, Standalone iStandalone);

    /// Links the node behind the end of its children's flow, or behind what came before it.
    void Link();

    /// Visits the successors in list order: those that have a node are linked, the others walked.
    void VisitSuccessors(const QORListValQORBaseUnknown_var& iSuccessors, NullNode iNullNode);

    /// Whether the links of the node itself are followed: those of the root never are.
    bool FollowsLinks() const { return _level > 0; }

    /// Makes the node its own end where nothing came before it and it has no walked child.
    void EndAtCurrent();

    /// The node to go on at, with the present one for the previous; null where the call is over.
    VXMFabFlowNode* GetNext() const { return _next; }

    /// Where the flow has got to in this call, null while it has no end yet.
    VXMFabFlowNode* GetLast() const { return _last; }

private:
    void VisitChild(const QORBaseUnknown_var& iChild, Standalone iStandalone);
    void VisitSuccessor(const QORBaseUnknown_var& iSuccessor, NullNode iNullNode, bool iIsLast);
    bool MakeNode(const QORBaseUnknown_var& iItem, int iLevel, NullNode iNullNode, VXMFabFlowNode*& oNode);
    void WalkOn(VXMFabFlowNode* iFrom, VXMFabFlowNode* iNode, int iLevel);
    void LinkNodes(VXMFabFlowNode* iBefore, VXMFabFlowNode* iAfter, const char* iBeforeLabel, const char* iAfterLabel);

    VXMModelReading _reading;
    VXMBomGenerator& _generator;
    VXMFabFlowNode* _previous;
    VXMFabFlowNode* _current;
    int _level;
    LastSuccessor _lastSuccessor;
    VXMFabFlowNode* _last;
    VXMFabFlowNode* _next = nullptr;
};
