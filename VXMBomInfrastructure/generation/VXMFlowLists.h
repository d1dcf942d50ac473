#pragma once

#include "VXMBomInfrastructure/nodes/VXMFabFlowNode.h"
#include "VXMBomInfrastructure/nodes/VXMFabMBOMNode.h"

#include <array>

/// One product list of a flow node, and the type of the MBOM nodes that its entries become.
struct VXMFlowList {
    VXMFabMBOMNode::AssignmentType type;
    int (VXMFabFlowNode::*count)() const;
    QORBaseUnknown_var (VXMFabFlowNode::*entry)(int iPosition) const;
};

/// The five lists in the order in which both builds take them.
inline constexpr std::array<VXMFlowList, 5> kVXMFlowLists{{
    {VXMFabMBOMNode::AT_Create, &VXMFabFlowNode::GetNumberOfCP, &VXMFabFlowNode::GetCP},
    {VXMFabMBOMNode::AT_FirstAssign, &VXMFabFlowNode::GetNumberOfFAP, &VXMFabFlowNode::GetFAP},
    {VXMFabMBOMNode::AT_Fastener, &VXMFabFlowNode::GetNumberOfFasteners, &VXMFabFlowNode::GetFasteners},
    {VXMFabMBOMNode::AT_Process, &VXMFabFlowNode::GetNumberOfPP, &VXMFabFlowNode::GetPP},
    {VXMFabMBOMNode::AT_Remove, &VXMFabFlowNode::GetNumberOfRP, &VXMFabFlowNode::GetRP},
}};
