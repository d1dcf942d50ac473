#pragma once

#include "planner/desktop/plan/PlanRows.h"

#include <QMimeData>

#include <utility>
#include <vector>

namespace planner::desktop {

class PlanSession;

/// Rows of the plan, or items of its list, that a person drags. It never leaves the process.
class PlanDrag : public QMimeData {
    Q_OBJECT

public:
    struct Entry {
        PlanRow row;
        ModelObject* owner = nullptr; ///< of the list that names an item, null when it comes from the plan's list
        std::size_t position = 0;     ///< in that list
    };

    explicit PlanDrag(std::vector<Entry> entries = {}) : entries_(std::move(entries)) {}

    void add(const Entry& entry) { entries_.push_back(entry); }
    const std::vector<Entry>& entries() const { return entries_; }

    /// The objects that are dragged.
    std::vector<ModelObject*> objects() const;

    QStringList formats() const override { return {kFormat}; }
    bool hasFormat(const QString& format) const override { return format == kFormat; }

    static constexpr const char* kFormat = "application/x-planner-rows";

private:
    std::vector<Entry> entries_;
};

/// Where something is dropped: onto an object, or below it in front of another row.
struct DropPlace {
    ModelObject* object = nullptr; ///< null for the plan itself
    ModelObject* before = nullptr; ///< the activity or resource that it comes in front of; null for the end
    std::optional<PlanDrag::Entry> beforeEntry = {}; ///< the item in a list that it comes in front of
};

/// The relations in which all the items can stand in lists of the owner.
std::vector<Relation> relationsFor(const ModelObject& owner, const std::vector<ModelObject*>& items);

/// Whether the place takes all that is dragged. Null for what isn't ours.
bool canDrop(const PlanDrag* drag, const DropPlace& place);

/// Moves what is dragged to a place that takes it: activities, resources, items that stand in a list and can stand in
/// the same of the place's object; `copy` leaves items where they are. False for items about which a person has to say
/// in which relation they come.
bool drop(PlanSession& session, const PlanDrag& drag, const DropPlace& place, bool copy);

/// Puts items into a list of the owner, as one step.
void putItems(PlanSession& session, ModelObject& owner, Relation relation, const std::vector<ModelObject*>& items);

/// Removes what the rows stand for, as one step: items from the lists that name them, other objects from the plan.
void removeRows(PlanSession& session, const std::vector<PlanDrag::Entry>& rows);

} // namespace planner::desktop
