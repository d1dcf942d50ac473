#pragma once

#include "QORPlatform/navigation/QORNodeExtension.h"
#include "VXMBomInfrastructure/VXMExport.h"

/// Extension of the nodes that the navigator makes for BOM objects: gives them the product icon at each update. Apart
/// from that, and from actions, after which nothing happens, they behave like any other node.
///
/// Extends the late types "VXMPFNavObjectPPR_node" and "VXMBomNavObject_node"; only nodes of the second get the icon.
class VXM_EXPORT VXMPFNavigModifyMBOMObject : public QORNodeExtension {
public:
    VXMPFNavigModifyMBOMObject();
    ~VXMPFNavigModifyMBOMObject() override;

    static QORMetaClass* ClassMeta();
    QORMetaClass* GetMetaObject() const override;

    /// Nothing happens after an action.
    void ProcessAfterAction() override;

    /// Makes the extended node a plain one and sets its icon. iInstance isn't looked at.
    void UpdateElem(QORNavigInstance* iInstance) override;

    /// 0 at all times.
    int IsActive() { return 0; }

    /// Does nothing.
    void SetCallback() {}
};
