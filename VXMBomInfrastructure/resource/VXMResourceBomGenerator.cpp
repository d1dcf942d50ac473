// The walk of a resource. It has the shape of the walk of a process plan (see VXMProcessBomGenerator), in two branches
// that are chosen anew for each node. What sets the three apart:
//
//                                process plan      activity here      resource here
//   children                     child management  child management   activities of the behaviour; where that list is
//                                                                     null, child products
//   children without links       logical nodes go  go                 stay as activities, go as products
//   no node for a first item     -                 registered as null registered as null
//   successors                   control flow      control flow       flow of the behaviour, else of the resource
//   no node for a successor      skipped           skipped            registered as null and walked
//   nothing before, no children  no end            its own end        no end

#include "VXMBomInfrastructure/resource/VXMResourceBomGenerator.h"

#include "VXMBomInfrastructure/generation/VXMFirstItemSearch.h"
#include "VXMBomInfrastructure/generation/VXMFlowWalk.h"
#include "VXMBomInfrastructure/model/QORIProduct.h"
#include "VXMBomInfrastructure/model/QORISpecObject.h"
#include "VXMBomInfrastructure/model/VXMIResourceBehaviorManager.h"
#include "VXMBomInfrastructure/model/VXMIResourceFlowMgmt.h"
#include "VXMBomInfrastructure/nodes/VXMFabResourceFlowNode.h"
#include "VXMBomInfrastructure/process/VXMActivityLinks.h"
#include "VXMBomInfrastructure/process/VXMWalkedActivityFlowNode.h"

#include <memory>
#include <typeinfo>
#include <utility>

namespace {

using List = std::unique_ptr<QORListValQORBaseUnknown_var>;

bool IsEmpty(const List& iList) {
    return !iList || iList->Size() == 0;
}

std::optional<QORBaseUnknown_var> FirstOf(const List& iList) {
    return IsEmpty(iList) ? std::nullopt : std::optional((*iList)[1]);
}

bool HasLinks(const VXMIResourceFlowMgmt_var& iFlow) {
    // Each list is gone before the next one is asked for.
    const bool hasPredecessors = !IsEmpty(List(iFlow->GetPredecessors()));
    return hasPredecessors || !IsEmpty(List(iFlow->GetSuccessors()));
}

} // namespace

VXMResourceBomGenerator::VXMResourceBomGenerator(const QORBaseUnknown_var& iRoot) : VXMBomGenerator(iRoot) {}

VXMResourceBomGenerator::~VXMResourceBomGenerator() = default;

VXMFabFlowNode* VXMResourceBomGenerator::CheckFlow(VXMFabFlowNode* iPrevious, VXMFabFlowNode* iCurrent, int iLevel) {
    const bool isOwn = typeid(*this) == typeid(VXMResourceBomGenerator);
    while (iCurrent) {
        const bool isResource = iCurrent->IsAResourceFlowNode() == 1;
        VXMFlowWalk walk(*this, iPrevious, iCurrent, iLevel,
                         isOwn ? VXMFlowWalk::LastSuccessor::LeftToCaller : VXMFlowWalk::LastSuccessor::Called);
        TraceFlow();
        const QORBaseUnknown_var object = iCurrent->GetActivity();
        if (!QORISpecObject_var(object)) {
            return iPrevious;
        }
        const Behavior behavior = isResource ? FindBehavior(object) : Behavior();
        isResource ? VisitResourceChildren(walk, object, behavior) : VisitActivityChildren(walk, object);
        TraceFlow();
        walk.Link();
        TraceFlow();
        isResource ? VisitResourceSuccessors(walk, object, behavior) : VisitActivitySuccessors(walk, object);
        if (!walk.GetNext()) {
            return walk.GetLast();
        }
        iPrevious = std::exchange(iCurrent, walk.GetNext());
    }
    return iPrevious;
}

void VXMResourceBomGenerator::VisitActivityChildren(VXMFlowWalk& ioWalk, const QORBaseUnknown_var& iActivity) {
    if (const auto children = VXMActivityLinks::Children(iActivity)) {
        ioWalk.VisitChildren(*children, VXMFlowWalk::Standalone::LeftOut);
    }
}

void VXMResourceBomGenerator::VisitActivitySuccessors(VXMFlowWalk& ioWalk, const QORBaseUnknown_var& iActivity) {
    const QORISPPFlowMgt_var flow(iActivity);
    if (!flow || !ioWalk.FollowsLinks()) {
        return;
    }
    const QORListValQORBaseUnknown_var successors = VXMActivityLinks::Successors(flow);
    ioWalk.EndAtCurrent();
    ioWalk.VisitSuccessors(successors, VXMFlowWalk::NullNode::Skipped);
}

VXMResourceBomGenerator::Behavior VXMResourceBomGenerator::FindBehavior(const QORBaseUnknown_var& iResource) {
    Behavior behavior;
    if (const VXMIResourceBehaviorManager_var manager{iResource}) {
        behavior.status = manager->GetBehavior(behavior.handle);
    }
    return behavior;
}

void VXMResourceBomGenerator::VisitResourceChildren(VXMFlowWalk& ioWalk, const QORBaseUnknown_var& iResource,
                                                    const Behavior& iBehavior) {
    if (iBehavior.status != QOR_OK || !iBehavior.handle) {
        return;
    }
    if (const List activities{iBehavior.handle->GetActivities(nullptr)}) {
        ioWalk.VisitChildren(*activities, VXMFlowWalk::Standalone::Walked);
        return;
    }
    const QORIProduct_var product(iResource);
    if (const List products{product ? product->GetChildren("QORIProduct") : nullptr}) {
        ioWalk.VisitChildren(*products, VXMFlowWalk::Standalone::LeftOut);
    }
}

void VXMResourceBomGenerator::VisitResourceSuccessors(VXMFlowWalk& ioWalk, const QORBaseUnknown_var& iResource,
                                                      const Behavior& iBehavior) {
    VXMIResourceFlowMgmt_var flow(iBehavior.handle);
    if (!flow) {
        flow = iResource;
    }
    if (!flow || !ioWalk.FollowsLinks()) {
        return;
    }
    if (const List successors{flow->GetSuccessors()}) {
        ioWalk.VisitSuccessors(*successors, VXMFlowWalk::NullNode::Registered);
    }
}

QORBaseUnknown_var VXMResourceBomGenerator::GetFirstFlowNode(const QORBaseUnknown_var& iItem) {
    return VXMSearchFirstItem(*this, iItem, [](const QORBaseUnknown_var& iFrom) -> std::optional<QORBaseUnknown_var> {
        if (const VXMIResourceFlowMgmt_var resourceFlow{iFrom}) {
            return FirstOf(List(resourceFlow->GetPredecessors()));
        }
        const QORISPPFlowMgt_var controlFlow(iFrom);
        return controlFlow ? VXMActivityLinks::FirstPredecessor(controlFlow) : std::nullopt;
    });
}

unsigned char VXMResourceBomGenerator::IsStandaloneLogicalNode(const QORBaseUnknown_var& iItem) {
    if (const VXMIResourceFlowMgmt_var resourceFlow{iItem}) {
        return HasLinks(resourceFlow) ? 0 : 1;
    }
    const QORISPPFlowMgt_var controlFlow(iItem);
    return controlFlow && VXMActivityLinks::HasLinks(controlFlow) ? 0 : 1;
}

VXMFabFlowNode* VXMResourceBomGenerator::CreateFlowNode(QORBaseUnknown_var iItem, const int iLevel) {
    if (const VXMIResourceBehaviorManager_var manager{iItem}) {
        return new VXMFabResourceFlowNode(manager, iLevel, GetCounter(), GetFastenersShowMode(),
                                          GetAssignedFastenersShowMode());
    }
    if (const QORISPPAbstractActivity_var activity{iItem}) {
        return new VXMWalkedActivityFlowNode(*this, activity, iLevel);
    }
    return nullptr;
}
