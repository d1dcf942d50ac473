// The walk of a process plan. What flows towards an activity that has children flows into the first of them, on through
// its brothers, and then into the activity itself, whose node thus means that all below it is finished. See VXMFlowWalk
// for the steps, and VXMResourceBomGenerator for the walk of a resource beside this one.

#include "VXMBomInfrastructure/process/VXMProcessBomGenerator.h"

#include "VXMBomInfrastructure/generation/VXMFirstItemSearch.h"
#include "VXMBomInfrastructure/generation/VXMFlowWalk.h"
#include "VXMBomInfrastructure/model/QORISPPActivity.h"
#include "VXMBomInfrastructure/model/QORISpecObject.h"
#include "VXMBomInfrastructure/process/VXMActivityLinks.h"
#include "VXMBomInfrastructure/process/VXMWalkedActivityFlowNode.h"

#include <typeinfo>
#include <utility>

VXMProcessBomGenerator::VXMProcessBomGenerator(const QORBaseUnknown_var& iRoot) : VXMBomGenerator(iRoot) {}

VXMProcessBomGenerator::~VXMProcessBomGenerator() = default;

VXMFabFlowNode* VXMProcessBomGenerator::CheckFlow(VXMFabFlowNode* iPrevious, VXMFabFlowNode* iCurrent, int iLevel) {
    const bool isOwn = typeid(*this) == typeid(VXMProcessBomGenerator);
    while (iCurrent) {
        VXMFlowWalk walk(*this, iPrevious, iCurrent, iLevel,
                         isOwn ? VXMFlowWalk::LastSuccessor::LeftToCaller : VXMFlowWalk::LastSuccessor::Called);
        TraceFlow();
        const QORBaseUnknown_var activity = iCurrent->GetActivity();
        if (!QORISpecObject_var(activity)) {
            return iPrevious;
        }
        if (const auto children = VXMActivityLinks::Children(activity)) {
            walk.VisitChildren(*children, VXMFlowWalk::Standalone::LeftOut);
        }
        TraceFlow();
        walk.Link();
        TraceFlow();
        const QORISPPFlowMgt_var flow(activity);
        if (flow && walk.FollowsLinks()) {
            walk.VisitSuccessors(VXMActivityLinks::Successors(flow), VXMFlowWalk::NullNode::Skipped);
        }
        if (!walk.GetNext()) {
            return walk.GetLast();
        }
        iPrevious = std::exchange(iCurrent, walk.GetNext());
    }
    return iPrevious;
}

QORBaseUnknown_var VXMProcessBomGenerator::GetFirstFlowNode(const QORBaseUnknown_var& iItem) {
    return VXMSearchFirstItem(*this, iItem, [](const QORBaseUnknown_var& iFrom) -> std::optional<QORBaseUnknown_var> {
        const QORISPPFlowMgt_var flow(iFrom);
        return flow ? VXMActivityLinks::FirstPredecessor(flow) : std::nullopt;
    });
}

unsigned char VXMProcessBomGenerator::IsStandaloneLogicalNode(const QORBaseUnknown_var& iItem) {
    if (QORISPPActivity_var(iItem)) {
        return 0;
    }
    const QORISPPFlowMgt_var flow(iItem);
    return flow && !VXMActivityLinks::HasLinks(flow) ? 1 : 0;
}

VXMFabFlowNode* VXMProcessBomGenerator::CreateFlowNode(QORBaseUnknown_var iItem, const int iLevel) {
    return new VXMWalkedActivityFlowNode(*this, QORISPPAbstractActivity_var(iItem), iLevel);
}
