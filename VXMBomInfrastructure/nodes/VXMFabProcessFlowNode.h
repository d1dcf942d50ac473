#pragma once

#include "VXMBomInfrastructure/nodes/VXMFabFlowNode.h"

class VXMStationMemo;

/// Flow node of an activity: its items by relation, its outputs, and whether it stands in a station.
class VXM_EXPORT VXMFabProcessFlowNode : public VXMFabFlowNode {
public:
    /// Reads the activity. With a null handle, or an object that is no activity, everything but the level stays empty.
    /// ioStations, when given, is asked for and remembers which activities stand in stations.
    VXMFabProcessFlowNode(const QORISPPAbstractActivity_var& iActivity, const int iLevel, const int iNumber,
                          const int iFastenersShowMode, const unsigned char iAssignedFastenersShowMode,
                          VXMStationMemo* ioStations = nullptr);
    ~VXMFabProcessFlowNode() override;

    unsigned char IsAResourceFlowNode() const override { return 0; }

    /// Fills the five lists; the constructor calls it.
    void AssignProductsAndFasteners();

    /// Append every entry to the assigned, or the removed products. The list, which may be null, is taken over.
    void CreateAssignedProductsList(QORListValQORBaseUnknown_var* iList);
    void CreateRemovedProductsList(QORListValQORBaseUnknown_var* iList);

    /// Appends the products behind the output records of iActivity to the output products.
    void CreateOutputAssignedProductsList(QORBaseUnknown_var iActivity);

private:
    QORISPPAbstractActivity_var _abstractActivity;
};
