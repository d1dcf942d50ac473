#include "planner/desktop/plan/PlanDrop.h"

#include "planner/desktop/plan/PlanSession.h"

#include "planner/model/Activity.h"
#include "planner/model/Contents.h"

#include <algorithm>

namespace planner::desktop {

namespace {

/// What several objects are called together, in the texts of undo.
std::string called(const std::vector<ModelObject*>& objects) {
    return objects.size() == 1 ? '"' + objects.front()->name() + '"' : std::to_string(objects.size()) + " objects";
}

bool standsIn(const ModelObject& object, const ModelObject* container) {
    for (const ModelObject* each = container; each && each->sort() != Sort::Item;) {
        if (each == &object) {
            return true;
        }
        each = static_cast<const FlowObject*>(each)->container();
    }
    return false;
}

/// Whether an object that stands in the plan itself can stand in the place.
bool canStand(const ModelObject& object, const DropPlace& place) {
    if (standsIn(object, place.object)) {
        return false;
    }
    if (object.sort() == Sort::Resource) {
        return !place.object || place.object->sort() == Sort::Resource;
    }
    const bool isRoot = !static_cast<const FlowObject&>(object).container();
    return object.sort() == Sort::Activity && !isRoot && place.object && activitiesIn(*place.object);
}

/// Position of `before` in a list once `object` is out of it; kAtEnd when it isn't there.
template <class T>
std::size_t positionBefore(const std::vector<T*>& list, const ModelObject* before, const ModelObject& object) {
    std::size_t position = 0;
    for (const T* each : list) {
        if (each == before) {
            return position;
        }
        position += each == &object ? 0 : 1;
    }
    return kAtEnd;
}

void moveObject(PlanEditor& editor, ModelObject& object, const DropPlace& place) {
    if (object.sort() == Sort::Activity) {
        const std::size_t position = positionBefore(activitiesIn(*place.object)->entries(), place.before, object);
        editor.moveActivity(static_cast<Activity&>(object), static_cast<FlowObject&>(*place.object), position);
        return;
    }
    auto* const parent = static_cast<Resource*>(place.object);
    const std::size_t position = parent ? positionBefore(parent->children.entries(), place.before, object)
                                        : positionBefore(editor.plan().resources.entries(), place.before, object);
    editor.moveResource(static_cast<Resource&>(object), parent, position);
}

bool isItem(const PlanDrag::Entry& entry) {
    return entry.row.object->sort() == Sort::Item;
}

bool holdsItems(const PlanDrag& drag) {
    return std::all_of(drag.entries().begin(), drag.entries().end(), isItem);
}

/// Rows of one list, the last first, so that taking one out leaves the positions of the others.
std::vector<PlanDrag::Entry> fromTheBack(std::vector<PlanDrag::Entry> rows) {
    std::stable_sort(rows.begin(), rows.end(),
                     [](const auto& left, const auto& right) { return left.position > right.position; });
    return rows;
}

/// Whether one entry of a list is dropped in front of another, or behind the last.
bool isShift(const PlanDrag& drag, const DropPlace& place) {
    const PlanDrag::Entry& entry = drag.entries().front();
    return drag.entries().size() == 1 && entry.row.relation && entry.owner == place.object && place.beforeEntry &&
           place.beforeEntry->row.relation == entry.row.relation;
}

void shift(PlanEditor& editor, const PlanDrag::Entry& entry, std::size_t before) {
    const std::size_t to = before > entry.position ? before - 1 : before;
    if (to != entry.position) {
        editor.moveEntry(*entry.owner, *entry.row.relation, entry.position, to);
    }
}

} // namespace

std::vector<ModelObject*> PlanDrag::objects() const {
    std::vector<ModelObject*> objects;
    std::transform(entries_.begin(), entries_.end(), std::back_inserter(objects),
                   [](const Entry& entry) { return entry.row.object; });
    return objects;
}

std::vector<Relation> relationsFor(const ModelObject& owner, const std::vector<ModelObject*>& items) {
    std::vector<Relation> relations;
    std::copy_if(kRelations.begin(), kRelations.end(), std::back_inserter(relations), [&](Relation relation) {
        return listOf(owner, relation) && std::all_of(items.begin(), items.end(), [&](const ModelObject* item) {
                   return fits(*item, wantedIn(relation, owner.sort()));
               });
    });
    return relations;
}

bool canDrop(const PlanDrag* drag, const DropPlace& place) {
    if (!drag || drag->entries().empty()) {
        return false;
    }
    if (holdsItems(*drag)) {
        return place.object && !relationsFor(*place.object, drag->objects()).empty();
    }
    return std::all_of(drag->entries().begin(), drag->entries().end(),
                       [&](const auto& entry) { return canStand(*entry.row.object, place); });
}

bool drop(PlanSession& session, const PlanDrag& drag, const DropPlace& place, bool copy) {
    if (!holdsItems(drag)) {
        session.perform([&](PlanEditor& editor) {
            editor.group("Move " + called(drag.objects()), [&] {
                for (ModelObject* const object : drag.objects()) {
                    moveObject(editor, *object, place);
                }
            });
        });
        return true;
    }
    if (!copy && isShift(drag, place)) {
        session.perform(
            [&](PlanEditor& editor) { shift(editor, drag.entries().front(), place.beforeEntry->position); });
        return true;
    }
    const bool stays = std::all_of(drag.entries().begin(), drag.entries().end(), [&](const auto& entry) {
        return entry.row.relation && listOf(*place.object, *entry.row.relation);
    });
    if (!stays) {
        return false;
    }
    session.perform([&](PlanEditor& editor) {
        editor.group((copy ? "Copy " : "Move ") + called(drag.objects()), [&] {
            for (const auto& entry : drag.entries()) {
                editor.putItem(*place.object, *entry.row.relation, *entry.row.object);
            }
            for (const auto& entry : copy ? std::vector<PlanDrag::Entry>() : fromTheBack(drag.entries())) {
                editor.takeItem(*entry.owner, *entry.row.relation, entry.position);
            }
        });
    });
    return true;
}

void putItems(PlanSession& session, ModelObject& owner, Relation relation, const std::vector<ModelObject*>& items) {
    session.perform([&](PlanEditor& editor) {
        editor.group("Put " + called(items) + " into \"" + owner.name() + '"', [&] {
            for (ModelObject* const item : items) {
                editor.putItem(owner, relation, *item);
            }
        });
    });
}

namespace {

void removeObject(PlanEditor& editor, ModelObject& object) {
    switch (object.sort()) {
    case Sort::Activity:
        return editor.removeActivity(static_cast<Activity&>(object));
    case Sort::Resource:
        return editor.removeResource(static_cast<Resource&>(object));
    case Sort::Behaviour:
        return editor.removeBehaviour(static_cast<Resource&>(*static_cast<Behaviour&>(object).container()));
    default:
        return editor.removeItem(static_cast<Item&>(object));
    }
}

} // namespace

void removeRows(PlanSession& session, const std::vector<PlanDrag::Entry>& rows) {
    const PlanDrag all(rows);
    session.perform([&](PlanEditor& editor) {
        editor.group("Remove " + called(all.objects()), [&] {
            for (const auto& entry : fromTheBack(rows)) {
                if (entry.row.relation) {
                    editor.takeItem(*entry.owner, *entry.row.relation, entry.position);
                } else if (entry.row.object->standsInPlan()) {
                    removeObject(editor, *entry.row.object);
                }
            }
        });
    });
}

} // namespace planner::desktop
