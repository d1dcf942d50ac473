#pragma once

#include "VXMBomInfrastructure/generation/VXMBomComputation.h"
#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"
#include "VXMBomInfrastructure/index/VXMPool.h"
#include "VXMBomInfrastructure/nodes/VXMFabProcessFlowNode.h"

/// Flow node of an activity within a walk, which remembers the activities that stand in stations.
class VXMWalkedActivityFlowNode final : public VXMFabProcessFlowNode {
public:
    VXMWalkedActivityFlowNode(VXMBomGenerator& iGenerator, const QORISPPAbstractActivity_var& iActivity, int iLevel)
        : VXMFabProcessFlowNode(iActivity, iLevel, iGenerator.GetCounter(), iGenerator.GetFastenersShowMode(),
                                iGenerator.GetAssignedFastenersShowMode(), StationsOf(iGenerator)) {}

    static void* operator new(std::size_t) { return VXMPool<sizeof(VXMWalkedActivityFlowNode)>::Get().Take(); }
    static void operator delete(void* iNode) { VXMPool<sizeof(VXMWalkedActivityFlowNode)>::Get().GiveBack(iNode); }

private:
    static VXMStations* StationsOf(VXMBomGenerator& iGenerator) {
        std::optional<VXMStations>& stations = VXMBomComputation::Of(iGenerator).stations;
        return stations ? &*stations : nullptr;
    }
};
