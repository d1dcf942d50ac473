#pragma once

#include "planner/model/IdIndex.h"
#include "planner/model/LinkList.h"
#include "planner/model/Resource.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace planner {

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

    /// Folder of the plan's file, from which paths in it are relative; empty for the current one.
    std::string folder;

    /// Remarks: JSON text, empty when there are none.
    std::string notes;

    // What stands in the plan, in order. Presence tells an absent list from an empty one.
    OptionalList<Item*> items;
    OptionalList<Resource*> resources;
    const LinkList& links() const { return links_; }

    /// Root of the process, null until setProcess or makeDefaultProcess was called.
    Activity* process() const { return process_; }
    void setProcess(Activity& root);

    /// Whether the root stands for a process that the file doesn't have.
    bool processIsDefault() const { return processIsDefault_; }

    /// Makes a root without anything below it, named after the plan.
    void makeDefaultProcess();

    // New objects, without an id and not yet standing anywhere.
    Item& newItem(ItemKind kind);
    Activity& newActivity();
    Behaviour& newBehaviour();
    Resource& newResource();

    /// Gives the object its id. Fails, changing nothing, when another object has that id.
    bool setId(ModelObject& object, std::string id);

    /// The object of that id, or null.
    ModelObject* find(std::string_view id) const { return byId_.find(id); }

    /// All objects with their ids, for many look-ups in a row.
    const IdIndex& index() const { return byId_; }

    /// Appends a link at the end of the plan's list and of both views.
    void addLink(FlowObject& from, FlowObject& to) { putLink(links_.make(from, to), nullptr); }
    void makeLinks() { links_.setPresent(true); }

    /// Gives every object that stands in the plan its identity number, from 1: items, the process depth first, then
    /// the resources depth first, where a behaviour and its activities come before the children. Tells each what it
    /// stands in.
    void number();

    // For editing. What is taken out stays in memory and comes back as the same object.

    /// Gives a new object of a numbered plan its id, which counts from `enter` on, and the next number.
    void nameNew(ModelObject& object, std::string id);

    /// The object counts as standing in the plan from now on, under its id, which no other object has; or no longer.
    void enter(ModelObject& object);
    void leave(ModelObject& object);

    /// Gives an object that stands in the plan another id, which no other object has. A behaviour can have none: empty.
    void changeId(ModelObject& object, std::string id);

    /// Gives up an object that was made and doesn't stand in the plan.
    void discard(ModelObject& object);

    /// Turns the default root into a process of its own under that id, and back.
    void ownProcess(std::string id);
    void disownProcess();

    /// Links that come and go. A new one is put in to stand in the list and in both views, a link in front of another
    /// (null for the end of the list), and can be taken out again.
    /// linkAt gives the link at a position from 0, null for the end.
    Link* linkAt(std::size_t position) const { return links_.at(position); }
    Link& newLink(FlowObject& from, FlowObject& to) { return links_.make(from, to); }
    void putLink(Link& link, Link* before);
    void takeLink(Link& link);
    void discardLink(Link& link) { links_.discard(link); }
    void setLinksPresent(bool present) { links_.setPresent(present); }

private:
    void numberNext(ModelObject& object) { object.SetIdentity(nextNumber_++); }

    template <class T>
    T& keep(std::unique_ptr<T> object);

    std::vector<ModelObject*> objects_;
    IdIndex byId_;
    LinkList links_;
    Activity* process_ = nullptr;
    bool processIsDefault_ = false;
    int nextNumber_ = 1;
};

} // namespace planner
