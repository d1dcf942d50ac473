#include "planner/model/Activity.h"

#include "planner/model/LinkList.h"

#include "QORPlatform/framework/QORObjectCounts.h"
#include "QORPlatform/notification/QOREventSubscriber.h"
#include "VXMBomInfrastructure/model/QORISPPActivityModificationEvents.h"
#include "VXMBomInfrastructure/model/QORISPPActivityRoot.h"
#include "VXMBomInfrastructure/model/QORISPPProductIO.h"

#include <array>
#include <unordered_set>

namespace planner {

namespace {

constexpr const char* kStepType = "PhysicalActivity";
constexpr const char* kFlowType = "Activity";

/// Model type of each kind besides the one that all steps have, by the kind's number.
constexpr std::array<const char*, 4> kOwnTypes{nullptr, "BIWActivityLoading", "BIWActivityStation",
                                               "BIWActivityGrouping"};

const char* firstType(ActivityKind kind) {
    if (kind == ActivityKind::Logical) {
        return "Logical";
    }
    const char* const own = kOwnTypes[static_cast<std::size_t>(kind)];
    return own ? own : kStepType;
}

/// Record of one output of an activity. Made for the asking, and gone with the list that brought it.
class OutputRecord final : public QORBaseUnknown {
public:
    explicit OutputRecord(ModelObject& product) : product_(&product) {}

    QORStatus QueryInterface(const QORInterfaceID& iInterface, void** oInterface) override {
        const QORStatus status = QORAnswer(iInterface, oInterface, record_);
        return status < 0 ? QORBaseUnknown::QueryInterface(iInterface, oInterface) : status;
    }

    // Answer of QORISPPProductIO.
    QORBaseUnknown_var GetProduct() const { return product_; }

private:
    QORBaseUnknown_var product_;
    QORISPPProductIOTie<OutputRecord> record_{this};
};

/// Publishes the changes of one plan, for the plan's root activity. Lives as long as anybody counts on it, so that who
/// is subscribed can still unsubscribe when the plan is gone.
class PlanPublisher final : public QOREventSubscriber, private QORCounted<PlanPublisher> {
public:
    static constexpr std::string_view kCountName = "planner::PlanPublisher";
};

} // namespace

/// What the root has more than other activities.
class Activity::Root {
public:
    // The publisher here and not at its field: g++ 12 leaves one that can't be made in memory there.
    explicit Root(Activity* activity)
        : root(activity), events(activity), publisher(QORVar<PlanPublisher>::Adopt(new PlanPublisher())) {}

    QORISPPActivityRootTie<Activity> root;
    QORISPPActivityModificationEventsTie<Activity> events;
    QORVar<PlanPublisher> publisher;
};

Activity::Activity() : FlowObject(Sort::Activity) {}

Activity::~Activity() = default;

Activity* Activity::parent() const {
    const bool isBelow = container() && container()->sort() == Sort::Activity;
    return isBelow ? static_cast<Activity*>(container()) : nullptr;
}

void Activity::becomeRoot() {
    if (!root_) {
        root_ = std::make_unique<Root>(this);
    }
}

QOREventSubscriber* Activity::GetEventPublisher() const {
    return root_ ? root_->publisher.Get() : nullptr;
}

std::string Activity::type() const {
    return type_ ? *type_ : firstType(kind());
}

void Activity::setType(std::optional<std::string> type) {
    type_ = type ? std::make_unique<std::string>(std::move(*type)) : nullptr;
}

QORStatus Activity::QueryInterface(const QORInterfaceID& iInterface, void** oInterface) {
    if (isStep() && QORAnswer(iInterface, oInterface, step_) >= 0) {
        return QOR_OK;
    }
    if (root_ && QORAnswer(iInterface, oInterface, root_->root, root_->events) >= 0) {
        return QOR_OK;
    }
    const QORStatus status =
        QORAnswer(iInterface, oInterface, abstract_, spec_, childManagement_, flow_, itemManagement_);
    return status < 0 ? ModelObject::QueryInterface(iInterface, oInterface) : status;
}

void Activity::forgetNeighbours() {
    FlowObject::forgetNeighbours();
    children.reset();
    for (ObjectList* list : {&firstAssigned, &assigned, &removed, &items, &outputs}) {
        list->reset();
    }
}

QORStatus Activity::GetType(QORUnicodeString& oType) const {
    oType = platformText(type());
    return QOR_OK;
}

unsigned char Activity::IsOfType(const QORUnicodeString& iType) const {
    return isStep() && (iType == kStepType || iType == firstType(kind())) ? 1 : 0;
}

bool Activity::matches(const QORUnicodeString& type) const {
    return type == "" || type == kFlowType || IsOfType(type) == 1;
}

QORListValQORBaseUnknown_var* Activity::GetChildren(const QORUnicodeString& iType) const {
    if (!children.present()) {
        return nullptr;
    }
    auto handles = std::make_unique<QORListValQORBaseUnknown_var>();
    for (Activity* child : children) {
        if (child->matches(iType)) {
            handles->Append(QORBaseUnknown_var(child));
        }
    }
    return handles.release();
}

namespace {

/// Adds the object to the handles when it is an activity that the filter lets through; resources and behaviours that
/// are linked with one stay out.
template <class Filter>
void appendActivity(QORListValQORBaseUnknown_var& handles, FlowObject* object, Filter filter) {
    if (object->sort() == Sort::Activity && filter(static_cast<const Activity&>(*object))) {
        handles.Append(QORBaseUnknown_var(object));
    }
}

} // namespace

QORListValQORBaseUnknown_var Activity::GetPredecessors(const QORUnicodeString& iType) const {
    QORListValQORBaseUnknown_var handles;
    for (const Link* link : linksIn()) {
        appendActivity(handles, link->from, [&](const Activity& activity) { return activity.matches(iType); });
    }
    return handles;
}

QORListValQORBaseUnknown_var Activity::GetSuccessors(const QORUnicodeString& iType) const {
    QORListValQORBaseUnknown_var handles;
    for (const Link* link : linksOut()) {
        appendActivity(handles, link->to, [&](const Activity& activity) { return activity.matches(iType); });
    }
    return handles;
}

QORListValQORBaseUnknown_var Activity::GetProductOutputs(const QORISPPItem_var& iItem) const {
    QORListValQORBaseUnknown_var records;
    for (ModelObject* product : outputs) {
        if (!iItem || iItem.Impl() == product) {
            records.Append(QORBaseUnknown_var::Adopt(new OutputRecord(*product)));
        }
    }
    return records;
}

QORListValQORBaseUnknown_var* Activity::GetItems(const QORUnicodeString& iKind, int iRelation) const {
    if (!(iKind == "Item")) {
        return nullptr;
    }
    switch (iRelation) {
    case 0:
        return newAllItems();
    case 1:
        return newHandles(assigned);
    case 2:
        return newHandles(firstAssigned);
    case 4:
        return newHandles(removed);
    default:
        return nullptr;
    }
}

QORListValQORBaseUnknown_var* Activity::newAllItems() const {
    auto handles = std::make_unique<QORListValQORBaseUnknown_var>();
    std::unordered_set<const ModelObject*> met;
    for (const ObjectList* list : {&firstAssigned, &assigned, &removed, &items}) {
        for (ModelObject* item : *list) {
            if (met.insert(item).second) {
                handles->Append(QORBaseUnknown_var(item));
            }
        }
    }
    return handles.release();
}

} // namespace planner
