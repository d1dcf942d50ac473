#pragma once

#include "VXMBomInfrastructure/nodes/VXMFabFlowNode.h"

class VXMStations;

/// Flow node of an activity: its items by relation, its outputs, and whether it stands in a station.
class VXM_EXPORT VXMFabProcessFlowNode : public VXMFabFlowNode {
public:
    /// Reads the activity. With a null handle, or an object that is no activity, everything but the level stays empty.
    VXMFabProcessFlowNode(const QORISPPAbstractActivity_var& iActivity, const int iLevel, const int iNumber,
                          const int iFastenersShowMode, const unsigned char iAssignedFastenersShowMode);
    ~VXMFabProcessFlowNode() override;

    unsigned char IsAResourceFlowNode() override;

    /// Fills the five lists; the constructor calls it.
    void AssignProductsAndFasteners();

    /// Append every entry to the assigned, or the removed products. The list, which may be null, is taken over.
    void CreateAssignedProductsList(QORListValQORBaseUnknown_var* iList);
    void CreateRemovedProductsList(QORListValQORBaseUnknown_var* iList);

    /// Appends the products behind the output records of iActivity to the output products.
    void CreateOutputAssignedProductsList(QORBaseUnknown_var iActivity);

private:
    friend class VXMWalkedActivityFlowNode;

    /// The same within a walk, which remembers the activities that stand in stations.
    VXMFabProcessFlowNode(const QORISPPAbstractActivity_var& iActivity, const int iLevel, const int iNumber,
                          const int iFastenersShowMode, const unsigned char iAssignedFastenersShowMode,
                          VXMStations* ioStations);

    QORISPPAbstractActivity_var _abstractActivity;
};
