#include "bench/ModelCalls.h"

#include "planner/model/Contents.h"

#include "QORPlatform/framework/QORModelIdentificator.h"
#include "VXMBomInfrastructure/model/VXMModel.h"

#include <memory>

namespace bench {

using namespace planner;

namespace {

using List = std::unique_ptr<QORListValQORBaseUnknown_var>;

void callActivity(const QORBaseUnknown_var& handle) {
    static const QORUnicodeString kItem("Item");
    static const QORUnicodeString kLink("Activity");
    static const QORUnicodeString kStation("BIWActivityStation");
    QORModelIdentificator(handle.Impl()).GetIntId();
    const QORISPPAbstractActivity_var abstract(handle);
    abstract->GetName();
    abstract->GetParent();
    const QORISpecObject_var typed(handle);
    for (int type = 0; type < 4; ++type) {
        typed->IsOfType(kStation);
    }
    const QORISPPItemMgt_var items(handle);
    for (const int relation : {2, 1, 4, 0}) {
        const List list(items->GetItems(kItem, relation));
    }
    const QORISPPFlowMgt_var flow(handle);
    flow->GetProductOutputs(QORISPPItem_var());
    flow->GetPredecessors(kLink);
    flow->GetSuccessors(kLink);
    const QORISPPChildManagement_var management(handle);
    const List children(management->GetChildren(QORUnicodeString()));
}

void callItem(const QORBaseUnknown_var& handle) {
    QORModelIdentificator(handle.Impl()).GetIntId();
    const VXMIMfgAssembly_var assembly(handle);
    const QORIProduct_var product(handle);
    if (assembly) {
        assembly->GetName();
        QORListValQORBaseUnknown_var* contents = nullptr;
        assembly->GetAssignedProducts(contents);
        const List list(contents);
    } else if (product) {
        QORUnicodeString name;
        product->GetInstanceName(name);
        const List list(product->GetChildren("QORIProduct"));
    } else {
        QORISPPItem_var(handle)->GetName();
    }
    if (const VXMIBIWFastener_var fastener{handle}) {
        fastener->GetProcessType();
        fastener->IsAssigned();
    }
}

void callResource(const QORBaseUnknown_var& handle) {
    QORModelIdentificator(handle.Impl()).GetIntId();
    const QORIProduct_var product(handle);
    product->GetProductName();
    const List children(product->GetChildren("QORIProduct"));
    const VXMIResourceFlowMgmt_var flow(handle);
    const List predecessors(flow->GetPredecessors());
    const List successors(flow->GetSuccessors());
    VXMIResourceBehavior_var behaviour;
    VXMIResourceBehaviorManager_var(handle)->GetBehavior(behaviour);
    const List activities(behaviour->GetActivities(nullptr));
    const VXMIResourceItemMgmt_var items(behaviour);
    const List assigned(items->GetAssignedItems());
    const List fasteners(items->GetAssignedItems());
    const List outputs(items->GetOutputItems());
}

} // namespace

void callModel(const Sample& sample) {
    for (Item* item : sample.plan->items) {
        callItem(QORBaseUnknown_var(item));
    }
    walkContents(static_cast<FlowObject&>(*sample.root), [](FlowObject& object, ModelObject*) {
        if (object.sort() == Sort::Activity) {
            callActivity(QORBaseUnknown_var(&object));
        } else if (object.sort() == Sort::Resource) {
            callResource(QORBaseUnknown_var(&object));
        }
    });
}

} // namespace bench
