#pragma once

#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"
#include "VXMBomInfrastructure/model/VXMIResourceBehavior.h"

class VXMFlowWalk;

/// Generator for a resource with a behaviour, which holds activities, or child resources beneath the resource, with
/// flow links of their own. The flow graph is mixed: a resource with a behaviour manager gets a resource flow node, an
/// activity a process flow node, and the flow passes freely from one kind to the other.
class VXM_EXPORT VXMResourceBomGenerator : public VXMBomGenerator {
public:
    explicit VXMResourceBomGenerator(const QORBaseUnknown_var& iRoot);
    ~VXMResourceBomGenerator() override;

    VXMFabFlowNode* CheckFlow(VXMFabFlowNode* iPrevious, VXMFabFlowNode* iCurrent, int iLevel) override;

    /// An item's resource links alone decide when it has flow management of that kind, else its control-flow links.
    QORBaseUnknown_var GetFirstFlowNode(const QORBaseUnknown_var& iItem) override;

    /// 1 for everything that has no link, concrete activities and items without flow management included.
    unsigned char IsStandaloneLogicalNode(const QORBaseUnknown_var& iItem) override;

    /// Null for an item that is neither behaviour manager nor activity; one that is both counts as manager.
    VXMFabFlowNode* CreateFlowNode(QORBaseUnknown_var iItem, const int iLevel) override;

private:
    /// What GetBehavior of a manager gave. Status and handle needn't agree: only a success with a handle brings
    /// children, but a handle is asked for its links whatever the status.
    struct Behavior {
        QORStatus status = QOR_FAILED;
        VXMIResourceBehavior_var handle;
    };

    static Behavior FindBehavior(const QORBaseUnknown_var& iResource);
    static void VisitActivityChildren(VXMFlowWalk& ioWalk, const QORBaseUnknown_var& iActivity);
    static void VisitActivitySuccessors(VXMFlowWalk& ioWalk, const QORBaseUnknown_var& iActivity);
    static void VisitResourceChildren(VXMFlowWalk& ioWalk, const QORBaseUnknown_var& iResource,
                                      const Behavior& iBehavior);
    static void VisitResourceSuccessors(VXMFlowWalk& ioWalk, const QORBaseUnknown_var& iResource,
                                        const Behavior& iBehavior);
};
