#pragma once

#include "planner/model/FlowObject.h"
#include "planner/model/Item.h"
#include "planner/model/Kinds.h"

#include "VXMBomInfrastructure/model/QORISPPAbstractActivity.h"
#include "VXMBomInfrastructure/model/QORISPPActivity.h"
#include "VXMBomInfrastructure/model/QORISPPChildManagement.h"
#include "VXMBomInfrastructure/model/QORISPPFlowMgt.h"
#include "VXMBomInfrastructure/model/QORISPPItemMgt.h"
#include "VXMBomInfrastructure/model/QORISpecObject.h"

class QOREventSubscriber;

namespace planner {

/// A step of the plan, or a logical node, which answers the same but QORISPPActivity and is of no model type.
class Activity final : public FlowObject {
public:
    Activity();
    ~Activity() override;

    /// The kind: the own one, by default a plain activity.
    ActivityKind kind() const { return kind_.value_or(ActivityKind::Activity); }
    std::optional<ActivityKind> ownKind() const { return kind_; }
    void setKind(std::optional<ActivityKind> kind) { kind_ = kind; }
    bool isStep() const { return kind() != ActivityKind::Logical; }

    /// Text of the type: the own one, by default the first model type of the kind, "Logical" for a logical node.
    std::string type() const;
    std::optional<std::string> ownType() const { return type_ ? std::optional(*type_) : std::nullopt; }
    void setType(std::optional<std::string> type);

    /// The containing activity; null for the root and for an activity of a behaviour.
    Activity* parent() const;
    void setParent(Activity* parent) { setContainer(parent); }

    /// Makes this the root of a process, which answers QORISPPActivityRoot and QORISPPActivityModificationEvents too.
    void becomeRoot();

    // Items by relation, and what the activity puts out.
    ObjectList firstAssigned;
    ObjectList assigned;
    ObjectList removed;
    ObjectList items;
    ObjectList outputs;

    OptionalList<Activity*> children;

    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override;
    void forgetNeighbours() override;

    // Answers of QORISPPAbstractActivity.
    QORUnicodeString GetName() const { return platformText(name()); }
    QORISPPAbstractActivity_var GetParent() const { return parent(); }
    QORStatus GetType(QORUnicodeString& oType) const;

    // Answer of QORISpecObject.
    unsigned char IsOfType(const QORUnicodeString& iType) const;

    // Answer of QORISPPChildManagement.
    QORListValQORBaseUnknown_var* GetChildren(const QORUnicodeString& iType) const;

    // Answers of QORISPPFlowMgt. "Activity" is the type of all activities and logical nodes.
    QORListValQORBaseUnknown_var GetPredecessors(const QORUnicodeString& iType) const;
    QORListValQORBaseUnknown_var GetSuccessors(const QORUnicodeString& iType) const;
    QORListValQORBaseUnknown_var GetProductOutputs(const QORISPPItem_var& iItem) const;

    // Answer of QORISPPItemMgt.
    QORListValQORBaseUnknown_var* GetItems(const QORUnicodeString& iKind, int iRelation) const;

    // Answer of QORISPPActivityModificationEvents.
    QOREventSubscriber* GetEventPublisher() const;

private:
    class Root;

    bool matches(const QORUnicodeString& type) const;
    QORListValQORBaseUnknown_var* newAllItems() const;

    std::optional<ActivityKind> kind_;
    std::unique_ptr<std::string> type_;
    std::unique_ptr<Root> root_;
    QORISPPActivityTie<Activity> step_{this};
    QORISPPAbstractActivityTie<Activity> abstract_{this};
    QORISpecObjectTie<Activity> spec_{this};
    QORISPPChildManagementTie<Activity> childManagement_{this};
    QORISPPFlowMgtTie<Activity> flow_{this};
    QORISPPItemMgtTie<Activity> itemManagement_{this};
};

} // namespace planner
