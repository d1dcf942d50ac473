#pragma once

#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

/// Generator for a process plan, whose activities contain each other and follow each other.
class VXM_EXPORT VXMProcessBomGenerator : public VXMBomGenerator {
public:
    explicit VXMProcessBomGenerator(const QORBaseUnknown_var& iRoot);
    ~VXMProcessBomGenerator() override;

    VXMFabFlowNode* CheckFlow(VXMFabFlowNode* iPrevious, VXMFabFlowNode* iCurrent, int iLevel) override;
    QORBaseUnknown_var GetFirstFlowNode(const QORBaseUnknown_var& iItem) override;

    /// 1 only for what has flow management without any link and is no concrete activity.
    unsigned char IsStandaloneLogicalNode(const QORBaseUnknown_var& iItem) override;

    /// Never null; without an activity in iItem the node has a level and nothing else.
    VXMFabFlowNode* CreateFlowNode(QORBaseUnknown_var iItem, const int iLevel) override;
};
