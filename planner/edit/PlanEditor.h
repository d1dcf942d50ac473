#pragma once

#include "planner/edit/EditError.h"
#include "planner/edit/Mentions.h"
#include "planner/edit/PlanDocument.h"
#include "planner/edit/UndoStack.h"

#include <functional>
#include <optional>
#include <string>

namespace planner {

/// In the place of a position: behind the last entry.
inline constexpr std::size_t kAtEnd = static_cast<std::size_t>(-1);

/// What a new activity is. Without a value the plan file's defaults hold.
struct NewActivity {
    std::string id;
    std::optional<std::string> name = {};
    std::optional<ActivityKind> kind = {};
    std::optional<std::string> type = {};
};

/// What a new item is. Its kind stays: an item of another kind is another item.
struct NewItem {
    std::string id;
    ItemKind kind = ItemKind::Item;
    std::optional<std::string> name = {};
};

/// What a new resource is.
struct NewResource {
    std::string id;
    std::optional<std::string> name = {};
};

/// Edits the plan of a document, and keeps the document. There is one editor for a document at a time: making a second
/// one raises EditError.
///
/// Each operation is one step to undo, with a text for a menu ("Rename \"Panel\""). It either raises EditError with
/// nothing changed, or changes the plan and then tells the views of it: one notification for each kind of change in the
/// step (see ChangeKind), in the order of their numbers, by the publisher of the root activity. Undo and redo tell
/// likewise. What a subscriber raises comes out when all have been told; the step has been made then and can be undone.
/// Subscribers may edit, undo and end the editor.
///
/// After each operation the plan can be written to a file and read again: no id stands twice, nothing names what isn't
/// there. What is removed takes what names it along: its places in lists and its links, with those of all that stands
/// in it. Undo brings the same objects back, with their identity numbers, in their places; a list that was absent is
/// absent again. Positions count from 0; kAtEnd appends. Where a value is optional, none stands for the plan file's
/// default, which isn't written.
class PlanEditor {
public:
    explicit PlanEditor(PlanDocument& document);
    ~PlanEditor();
    PlanEditor(const PlanEditor&) = delete;
    PlanEditor& operator=(const PlanEditor&) = delete;

    Plan& plan() const { return document_->plan(); }

    /// The object of that id, which has to be in the plan.
    ModelObject& object(const std::string& id) const;

    // Activities. The container is an activity or a behaviour. A plan without a process gets one of its own, under an
    // id that is free, when its root is first edited.
    Activity& addActivity(FlowObject& container, const NewActivity& made, std::size_t position = kAtEnd);

    /// Removes an activity with all below it. The root stays.
    void removeActivity(Activity& activity);

    /// Moves an activity, in its container or to another; the position counts without it. Links stay.
    void moveActivity(Activity& activity, FlowObject& container, std::size_t position = kAtEnd);

    /// Makes an activity one of another kind. The root can't be logical.
    void setKind(Activity& activity, std::optional<ActivityKind> kind);
    void setType(Activity& activity, std::optional<std::string> type);

    /// Makes the absent list of activities of an activity or a behaviour an empty one, and an empty one absent. Nothing
    /// happens to a list that is as wanted; activities that stand there keep it.
    void makeActivities(FlowObject& container);
    void dropActivities(FlowObject& container);

    // All objects, and the plan itself.

    /// Gives an object a name of its own, or none: then its id serves. Behaviours have none in a plan file.
    void rename(ModelObject& object, std::optional<std::string> name);

    /// Gives an object another id; whoever names the object goes on doing so. A behaviour without links can have none.
    void changeId(ModelObject& object, const std::string& id);

    /// Puts a JSON value in the place of the notes of an object or of the plan; an empty text takes them away.
    void setNotes(ModelObject& object, std::string json);
    void setPlanNotes(std::string json);

    /// The title of the plan. A root that stands for an absent process is named after it.
    void setTitle(std::optional<std::string> title);

    // Links between activities, resources and behaviours that have an id. Their positions are those in the plan's list,
    // which is the order of all views.
    void addLink(FlowObject& from, FlowObject& to, std::size_t position = kAtEnd);

    /// Removes or moves the first link of these two ends; the position counts without it.
    void removeLink(FlowObject& from, FlowObject& to);
    void moveLink(FlowObject& from, FlowObject& to, std::size_t position);

    // The lists in which activities, behaviours, resources and items name others. All of them name items; children of a
    // product or an assembly can be resources as well.
    void putItem(ModelObject& owner, Relation relation, ModelObject& item, std::size_t position = kAtEnd);

    /// Takes out what is named at a position. The list stays, be it empty.
    void takeItem(ModelObject& owner, Relation relation, std::size_t position);

    /// Moves the entry at a position of a list; `to` counts without it. In the list of a resource that may be a nested
    /// one.
    void moveEntry(ModelObject& owner, Relation relation, std::size_t from, std::size_t to);

    /// Makes an absent list an empty one; takes everything out of a list and makes it absent. Nothing happens to a list
    /// that is as wanted. Nested resources keep the list in which they stand, and an assembly that others name as a
    /// child keeps its children.
    void makeList(ModelObject& owner, Relation relation);
    void dropList(ModelObject& owner, Relation relation);

    // Resources. They stand in a resource, or at the top, which is null.
    Resource& addResource(Resource* parent, const NewResource& made, std::size_t position = kAtEnd);
    void removeResource(Resource& resource);
    void moveResource(Resource& resource, Resource* parent, std::size_t position = kAtEnd);

    /// Gives a resource that has none a behaviour; with an id it can be linked, with an empty one it has none.
    Behaviour& addBehaviour(Resource& resource, const std::string& id);
    void removeBehaviour(Resource& resource);

    // Items. The position of one that moves counts without it.
    Item& addItem(const NewItem& made, std::size_t position = kAtEnd);
    void removeItem(Item& item);
    void moveItem(Item& item, std::size_t position);
    void setShape(Item& item, std::optional<Shape> shape);
    void setPlace(Item& item, std::optional<Place> place);
    void setFastenerType(Fastener& fastener, std::optional<std::string> type);
    void setAssigned(Fastener& fastener, std::optional<bool> assigned);

    /// Makes one step of all edits that the function makes. When it raises, they are taken back and nobody hears of
    /// them. A group in a group is part of it.
    void group(const std::string& text, const std::function<void()>& edits);

    // Undo and redo, without limit. The texts say what would be undone or redone, empty when there is nothing. Undoing
    // nothing does nothing and gives false, and so does undoing inside a group.
    bool canUndo() const { return !open_ && stack_.nextUndo(); }
    bool canRedo() const { return !open_ && stack_.nextRedo(); }
    std::string undoText() const { return canUndo() ? stack_.nextUndo()->text() : std::string(); }
    std::string redoText() const { return canRedo() ? stack_.nextRedo()->text() : std::string(); }
    bool undo();
    bool redo();

    /// Whether the plan differs from what was last saved, or from what the editor began with.
    bool isModified() const { return stack_.isModified(); }
    void markSaved() { stack_.markSaved(); }

private:
    template <class Edits>
    void perform(const std::string& text, Edits edits);
    template <class Swap>
    void exchange(const std::string& text, ChangeKind kind, ModelObject& object, Swap swap);
    void finishStep();
    void publish(const ChangeKinds& kinds) const;

    void ownProcess(const ModelObject& edited, const std::string& reservedId = {});
    void makeStanding(std::vector<ModelObject*> objects, Standing::Direction direction);
    std::unique_ptr<Change> makeListMove(KindPair kinds, ModelObject& object, std::optional<Spot> from,
                                         std::optional<Spot> to);
    void moveInLists(KindPair kinds, ModelObject& object, std::optional<Spot> from, std::optional<Spot> to);
    void takeFromList(ModelObject& owner, ObjectList& list, std::size_t position);
    void takeMentions(const ModelObject& object);
    void takeLink(Link& link);
    void takeContents(FlowObject& top, std::unique_ptr<Change> takeOut);
    void checkMayDrop(const ModelObject& owner, const ObjectList& list);
    ObjectList& listFor(ModelObject& owner, Relation relation) const;
    ChangeKind kindOfRenaming(const ModelObject& object);

    QORVar<PlanDocument> document_;
    Mentions mentions_;
    UndoStack stack_;
    std::optional<UndoStep> open_; // the step that is being made
};

template <class Edits>
void PlanEditor::perform(const std::string& text, Edits edits) {
    const bool isOwnStep = !open_;
    if (isOwnStep) {
        open_.emplace(text);
    }
    const std::size_t mark = open_->size();
    try {
        edits();
    } catch (...) {
        open_->cancel(mark);
        if (isOwnStep) {
            open_.reset();
        }
        throw;
    }
    if (isOwnStep) {
        finishStep();
    }
}

/// A step of one change that puts a value of an object in the place of another.
template <class Swap>
void PlanEditor::exchange(const std::string& text, ChangeKind kind, ModelObject& object, Swap swap) {
    perform(text, [&] {
        ownProcess(object);
        open_->make(makeExchange(eitherWay(kind), std::move(swap)));
    });
}

} // namespace planner
