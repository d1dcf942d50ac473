#include "support/TestModel.h"

#include <memory>
#include <string_view>
#include <utility>

namespace testmodel {

namespace {

using List = QORListValQORBaseUnknown_var;

List listOf(const Things& things) {
    List list;
    for (Thing* thing : things) {
        list.Append(QORBaseUnknown_var(static_cast<QORBaseUnknown*>(thing)));
    }
    return list;
}

void expect(bool holds, const char* what) {
    if (!holds) {
        throw std::logic_error(std::string("the library asked the model in an unknown way: ") + what);
    }
}

} // namespace

void Calls::made(const char* operation) {
    if (keepNames) {
        names.emplace_back(operation);
    }
    ++count;
    if (during) {
        during();
    }
    if (count == raiseAt) {
        throw std::runtime_error(operation);
    }
}

Thing::Thing(Calls& calls, int id, unsigned answered, std::string text)
    : answers(answered), name(std::move(text)), assemblyName(name), productName(name), calls_(calls) {
    SetIdentity(id);
}

QORStatus Thing::QueryInterface(const QORInterfaceID& wanted, void** found) {
    const auto answer = [&](unsigned bit, auto& tie) {
        return (answers & bit) != 0 && QORAnswer(wanted, found, tie) == QOR_OK;
    };
    const bool answered = answer(kActivity, activityTie_) || answer(kAbstract, abstractTie_) ||
                          answer(kSpec, specTie_) || answer(kChildren, childrenTie_) || answer(kFlow, flowTie_) ||
                          answer(kItemMgt, itemMgtTie_) || answer(kItem, itemTie_) || answer(kRecord, recordTie_) ||
                          answer(kFastener, fastenerTie_) || answer(kAssembly, assemblyTie_) ||
                          answer(kProduct, productTie_) || answer(kManager, managerTie_) ||
                          answer(kBehaviour, behaviourTie_) || answer(kResourceFlow, resourceFlowTie_) ||
                          answer(kResourceItems, resourceItemsTie_);
    return answered ? QOR_OK : QORBaseUnknown::QueryInterface(wanted, found);
}

QORUnicodeString Thing::text(const char* operation, const std::string& own) const {
    calls_.made(operation);
    return QORUnicodeString(own);
}

List* Thing::handles(const char* operation, const MaybeThings& list) const {
    calls_.made(operation);
    return list ? std::make_unique<List>(listOf(*list)).release() : nullptr;
}

List* Thing::links(const char* operation, const Things& list) const {
    return handles(operation, nullLinks && list.empty() ? MaybeThings() : MaybeThings(list));
}

QORISPPAbstractActivity_var Thing::GetParent() const {
    calls_.made("GetParent");
    return QORISPPAbstractActivity_var(static_cast<QORBaseUnknown*>(parent));
}

QORStatus Thing::GetType(QORUnicodeString& filled) const {
    filled = text("GetType", type);
    return QOR_FAILED;
}

List* Thing::GetChildren(const QORUnicodeString& filter) const {
    expect(filter == "", "children by type");
    return handles("GetChildren", children);
}

List Thing::GetPredecessors(const QORUnicodeString& filter) const {
    expect(filter == "Activity", "predecessors");
    calls_.made("GetPredecessors");
    return listOf(predecessors);
}

List Thing::GetSuccessors(const QORUnicodeString& filter) const {
    expect(filter == "Activity", "successors");
    calls_.made("GetSuccessors");
    return listOf(successors);
}

List Thing::GetProductOutputs(const QORISPPItem_var& item) const {
    expect(!item, "outputs of one item");
    calls_.made("GetProductOutputs");
    return listOf(outputs);
}

QORBaseUnknown_var Thing::GetProduct() const {
    calls_.made("GetProduct");
    return QORBaseUnknown_var(static_cast<QORBaseUnknown*>(product));
}

List* Thing::GetItems(const QORUnicodeString& kind, int relation) const {
    expect(kind == "Item", "items");
    return handles(("GetItems " + std::to_string(relation)).c_str(), items.at(relation));
}

unsigned char Thing::IsOfType(const QORUnicodeString& modelType) const {
    calls_.made("IsOfType");
    const auto found = modelTypes.find(static_cast<const char*>(modelType));
    return found == modelTypes.end() ? 0 : found->second;
}

List* Thing::GetChildren(const char* interface) const {
    expect(std::string_view(interface) == "QORIProduct", "child occurrences");
    return handles("GetProductChildren", parts);
}

QORStatus Thing::GetInstanceName(QORUnicodeString& filled) const {
    filled = text("GetInstanceName", name);
    return QOR_FAILED;
}

QORStatus Thing::GetAssignedProducts(List*& filled) const {
    expect(!filled, "assembly");
    filled = handles("GetAssignedProducts", held);
    return QOR_FAILED;
}

unsigned char Thing::IsAssigned() const {
    calls_.made("IsAssigned");
    return assigned;
}

QORStatus Thing::GetBehavior(VXMIResourceBehavior_var& filled) const {
    calls_.made("GetBehavior");
    if (behaviour) {
        filled = static_cast<QORBaseUnknown*>(behaviour);
    }
    return behaviourStatus;
}

List* Thing::GetActivities(void* reserved) const {
    expect(!reserved, "activities");
    return handles("GetActivities", activities);
}

World::~World() {
    for (Thing* thing : things_) {
        thing->Release();
    }
}

Thing& World::thing(const std::string& name, unsigned answers) {
    Thing*& found = byName_[name];
    if (!found) {
        found = things_.emplace_back(new Thing(calls, static_cast<int>(things_.size()) + 1, answers, name));
    }
    return *found;
}

Thing& World::operator[](const std::string& name) const {
    const auto found = byName_.find(name);
    if (found == byName_.end()) {
        throw std::logic_error("no thing named " + name);
    }
    return *found->second;
}

void World::link(Thing& from, Thing& to) {
    from.successors.push_back(&to);
    to.predecessors.push_back(&from);
}

void World::putOut(Thing& activity, Thing* product) {
    Thing& record = thing(activity.name + ".out" + std::to_string(activity.outputs.size() + 1), kRecord);
    record.product = product;
    activity.outputs.push_back(&record);
}

Thing& World::behaviourOf(Thing& resource) {
    resource.behaviour = &thing(resource.name + ".b", kBehaviour | kResourceItems);
    return *resource.behaviour;
}

} // namespace testmodel
