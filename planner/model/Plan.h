#pragma once

#include "planner/model/IdIndex.h"
#include "planner/model/Resource.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace planner {

/// A directed link of the flow.
struct Link {
    FlowObject* from;
    FlowObject* to;
};

/// A process plan in memory: items, one process tree, resources, links. It makes its objects, keeps each for its own
/// life whether it stands in the plan or not, and takes the graph apart at its end.
class Plan {
public:
    Plan();
    ~Plan();
    Plan(const Plan&) = delete;
    Plan& operator=(const Plan&) = delete;

    /// Title as the file gives it, and what stands in for it when it gives none.
    std::optional<std::string> ownTitle;
    std::string fallbackTitle;
    const std::string& title() const { return ownTitle ? *ownTitle : fallbackTitle; }

    /// Remarks: JSON text, empty when there are none.
    std::string notes;

    // What stands in the plan, in order. Presence tells an absent list from an empty one.
    OptionalList<Item*> items;
    OptionalList<Resource*> resources;
    const OptionalList<Link>& links() const { return links_; }

    /// Root of the process, null until setProcess or makeDefaultProcess was called.
    Activity* process() const { return process_; }
    void setProcess(Activity& root) { process_ = &root; }

    /// Whether the root stands for a process that the file doesn't have.
    bool processIsDefault() const { return processIsDefault_; }

    /// Makes a root without anything below it, named after the plan.
    void makeDefaultProcess();

    // New objects, without an id and not yet standing anywhere.
    Item& newItem(ItemKind kind);
    Activity& newActivity();
    Behaviour& newBehaviour();
    Resource& newResource();

    /// Gives the object its id. Fails, changing nothing, when another object has that id. An id is given once.
    bool setId(ModelObject& object, std::string id);

    /// The object of that id, or null.
    ModelObject* find(std::string_view id) const { return byId_.find(id); }

    /// Appends a link at the end of the plan's list and of both views.
    void addLink(FlowObject& from, FlowObject& to);
    void makeLinks() { links_.make(); }

    /// Gives every object that stands in the plan its identity number, from 1: items, the process depth first, then
    /// the resources depth first, where a behaviour and its activities come before the children.
    void number();

private:
    template <class T>
    T& keep(std::unique_ptr<T> object);

    std::vector<ModelObject*> objects_;
    IdIndex byId_;
    OptionalList<Link> links_;
    Activity* process_ = nullptr;
    bool processIsDefault_ = false;
};

} // namespace planner
