#include "VXMBomInfrastructure/generation/VXMFlowWalk.h"

#include "QORPlatform/framework/QORDeepStack.h"
#include "QORPlatform/toolkit/QORProgress.h"
#include "VXMBomInfrastructure/VXMBomViewerTrace.h"
#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"
#include "VXMBomInfrastructure/model/QORISPPAbstractActivity.h"
#include "VXMBomInfrastructure/model/QORISpecObject.h"

#include <memory>

namespace {

enum class TypeLine { Written, LeftOut };

void TraceItem(const QORBaseUnknown_var& iItem, TypeLine iTypeLine) {
    if (!VXMBomViewerTrace.IsActive()) {
        return;
    }
    const QORISPPAbstractActivity_var activity(iItem);
    if (!activity) {
        return;
    }
    VXMBomViewerTrace.TraPut("Name: ");
    VXMBomViewerTrace.TraPutLN(activity->GetName());
    if (iTypeLine == TypeLine::Written) {
        QORUnicodeString type;
        activity->GetType(type);
        VXMBomViewerTrace.TraPut("Type: ");
        VXMBomViewerTrace.TraPutLN(type);
    }
}

void TraceNodeName(const char* iLabel, const VXMFabFlowNode* iNode) {
    if (VXMBomViewerTrace.IsActive()) {
        VXMBomViewerTrace.TraPut(iLabel);
        VXMBomViewerTrace.TraPutLN(iNode->GetName());
    }
}

} // namespace

VXMFlowWalk::VXMFlowWalk(VXMBomGenerator& ioGenerator, VXMFabFlowNode* iPrevious, VXMFabFlowNode* iCurrent, int iLevel,
                         LastSuccessor iLastSuccessor)
    : _reading(ioGenerator), _generator(ioGenerator), _previous(iPrevious), _current(iCurrent), _level(iLevel),
      _lastSuccessor(iLastSuccessor), _last(iPrevious) {}

void VXMFlowWalk::VisitChildren(const QORListValQORBaseUnknown_var& iChildren, Standalone iStandalone) {
    const int count = iChildren.Size();
    for (int position = 1; position <= count; ++position) {
        VisitChild(iChildren[position], iStandalone);
    }
}

void VXMFlowWalk::VisitChild(const QORBaseUnknown_var& iChild, Standalone iStandalone) {
    TraceItem(iChild, TypeLine::Written);
    if (iStandalone == Standalone::LeftOut && _generator.IsStandaloneLogicalNode(iChild) == 1) {
        return;
    }
    if (!iChild || _generator.CheckUse(iChild)) {
        return;
    }
    VXMBomComputation& computation = VXMBomComputation::Of(_generator);
    const auto objects = [&computation] {
        return computation.graph.GetEntered().size();
    };
    const bool wouldGoRound = computation.childVisits.WouldGoRound(iChild.Impl(), objects());
    QORBaseUnknown_var first = wouldGoRound ? iChild : _generator.GetFirstFlowNode(iChild);
    if (!QORISpecObject_var(first)) {
        return;
    }
    VXMFabFlowNode* node = nullptr;
    MakeNode(first, _level + 1, NullNode::Registered, node);
    first = nullptr; // the node holds the item now; the walk below may go deep
    const VXMChildVisits::Visit visit(computation.childVisits, iChild.Impl(), objects());
    WalkOn(_previous, node, _level + 1);
}

void VXMFlowWalk::Link() {
    if (_last) {
        LinkNodes(_last, _current, "Predecessor: ", "Successor: ");
        _last = _current;
    }
}

void VXMFlowWalk::VisitSuccessors(const QORListValQORBaseUnknown_var& iSuccessors, NullNode iNullNode) {
    const int count = iSuccessors.Size();
    for (int position = 1; position <= count; ++position) {
        VisitSuccessor(iSuccessors[position], iNullNode, position == count);
    }
}

void VXMFlowWalk::VisitSuccessor(const QORBaseUnknown_var& iSuccessor, NullNode iNullNode, bool iIsLast) {
    TraceItem(iSuccessor, TypeLine::LeftOut);
    if (VXMFabFlowNode* const known = _generator.CheckUse(iSuccessor)) {
        LinkNodes(_current, known, "**Predecessor: ", "**Successor: ");
        _last = _generator.GetLastNodeInFlow(_current);
        return;
    }
    VXMFabFlowNode* node = nullptr;
    if (!MakeNode(iSuccessor, _level, iNullNode, node)) {
        return;
    }
    if (iIsLast && node && _lastSuccessor == LastSuccessor::LeftToCaller) {
        _next = node;
    } else {
        WalkOn(_current, node, _level);
    }
}

void VXMFlowWalk::EndAtCurrent() {
    if (!_last) {
        _last = _current;
    }
}

/// Makes and registers a node; false when there is none and a null node isn't to be registered.
bool VXMFlowWalk::MakeNode(const QORBaseUnknown_var& iItem, int iLevel, NullNode iNullNode, VXMFabFlowNode*& oNode) {
    QORWork::Step();
    std::unique_ptr<VXMFabFlowNode> node(_generator.CreateFlowNode(iItem, iLevel));
    if (!node && iNullNode == NullNode::Skipped) {
        return false;
    }
    _generator.UpdateFlowNodeLists(node.get());
    oNode = node.release();
    return true;
}

void VXMFlowWalk::WalkOn(VXMFabFlowNode* iFrom, VXMFabFlowNode* iNode, int iLevel) {
    QORCallDeep([this, iFrom, iNode, iLevel] { _last = _generator.CheckFlow(iFrom, iNode, iLevel); });
}

void VXMFlowWalk::LinkNodes(VXMFabFlowNode* iBefore, VXMFabFlowNode* iAfter, const char* iBeforeLabel,
                            const char* iAfterLabel) {
    iBefore->AddSuccessor(iAfter);
    iAfter->AddPredecessor(iBefore);
    TraceNodeName(iBeforeLabel, iBefore);
    TraceNodeName(iAfterLabel, iAfter);
}
