#pragma once

#include "planner/model/Activity.h"
#include "planner/model/FlowObject.h"

#include "VXMBomInfrastructure/model/QORIProduct.h"
#include "VXMBomInfrastructure/model/QORISpecObject.h"
#include "VXMBomInfrastructure/model/VXMIResourceBehavior.h"
#include "VXMBomInfrastructure/model/VXMIResourceBehaviorManager.h"
#include "VXMBomInfrastructure/model/VXMIResourceFlowMgmt.h"
#include "VXMBomInfrastructure/model/VXMIResourceItemMgmt.h"

namespace planner {

/// What a resource does: activities of its own, items that come to it and items that it puts out.
class Behaviour final : public FlowObject {
public:
    Behaviour() : FlowObject(Sort::Behaviour) {}

    OptionalList<Activity*> activities;
    ObjectList assigned;
    ObjectList outputs;

    /// The flow interface is answered by a behaviour that has an id.
    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override;
    void forgetNeighbours() override;

    // Answer of VXMIResourceBehavior.
    QORListValQORBaseUnknown_var* GetActivities(void* iReserved) const;

    // Answers of VXMIResourceItemMgmt.
    QORListValQORBaseUnknown_var* GetAssignedItems() const { return newHandles(assigned); }
    QORListValQORBaseUnknown_var* GetOutputItems() const { return newHandles(outputs); }

    // Answers of VXMIResourceFlowMgmt.
    QORListValQORBaseUnknown_var* GetPredecessors() const { return newPredecessors(); }
    QORListValQORBaseUnknown_var* GetSuccessors() const { return newSuccessors(); }

private:
    VXMIResourceBehaviorTie<Behaviour> behaviour_{this};
    VXMIResourceItemMgmtTie<Behaviour> items_{this};
    VXMIResourceFlowMgmtTie<Behaviour> flow_{this};
};

/// A resource: a robot, a cell. It is of no model type.
class Resource final : public FlowObject {
public:
    Resource() : FlowObject(Sort::Resource) {}

    /// Nested resources, and items that answer QORIProduct.
    ObjectList children;

    /// Null when the resource has none.
    Behaviour* behaviour() const { return behaviour_; }
    void setBehaviour(Behaviour* behaviour) { behaviour_ = behaviour; }

    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override;
    void forgetNeighbours() override;

    // Answers of QORIProduct.
    QORListValQORBaseUnknown_var* GetChildren(const char* iInterface) const;
    QORUnicodeString GetProductName() const { return platformText(name()); }
    QORStatus GetInstanceName(QORUnicodeString& oName) const;

    // Answer of VXMIResourceBehaviorManager.
    QORStatus GetBehavior(VXMIResourceBehavior_var& oBehavior) const;

    // Answers of VXMIResourceFlowMgmt.
    QORListValQORBaseUnknown_var* GetPredecessors() const { return newPredecessors(); }
    QORListValQORBaseUnknown_var* GetSuccessors() const { return newSuccessors(); }

    // Answer of QORISpecObject.
    unsigned char IsOfType(const QORUnicodeString&) const { return 0; }

private:
    Behaviour* behaviour_ = nullptr;
    QORIProductTie<Resource> product_{this};
    VXMIResourceBehaviorManagerTie<Resource> manager_{this};
    VXMIResourceFlowMgmtTie<Resource> flow_{this};
    QORISpecObjectTie<Resource> spec_{this};
};

} // namespace planner
