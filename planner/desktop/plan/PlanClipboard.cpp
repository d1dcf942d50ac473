#include "planner/desktop/plan/PlanClipboard.h"

#include "planner/desktop/plan/PlanSession.h"

#include <algorithm>

namespace planner::desktop {

namespace {

/// The entry where its item stands now; without owner and list when that no longer names it.
PlanDrag::Entry located(PlanDrag::Entry entry) {
    const ObjectList* const list = entry.owner && entry.owner->standsInPlan() && entry.row.relation
                                       ? listOf(*entry.owner, *entry.row.relation)
                                       : nullptr;
    const auto& entries = list ? list->entries() : std::vector<ModelObject*>();
    const bool stays = entry.position < entries.size() && entries[entry.position] == entry.row.object;
    const auto found = std::find(entries.begin(), entries.end(), entry.row.object);
    if (found == entries.end()) {
        return {PlanRow{entry.row.object}};
    }
    if (!stays) {
        entry.position = static_cast<std::size_t>(found - entries.begin());
    }
    return entry;
}

} // namespace

PlanClipboard::PlanClipboard(PlanSession& session) : QObject(&session), session_(session) {
    connect(&session_, &PlanSession::aboutToReplace, this, [this] { take({}, false); });
}

void PlanClipboard::take(const std::vector<PlanDrag::Entry>& rows, bool moves) {
    rows_ = rows;
    moves_ = moves;
    held_.clear();
    for (const PlanDrag::Entry& row : rows_) {
        held_.emplace_back(row.row.object);
        held_.emplace_back(row.owner);
    }
    Q_EMIT changed();
}

/// What is still in the plan, where it stands now.
std::vector<PlanDrag::Entry> PlanClipboard::present() const {
    std::vector<PlanDrag::Entry> rows;
    for (const PlanDrag::Entry& row : rows_) {
        if (row.row.object->standsInPlan()) {
            rows.push_back(located(row));
        }
    }
    return rows;
}

std::vector<ModelObject*> PlanClipboard::objects() const {
    return PlanDrag(present()).objects();
}

bool PlanClipboard::canPaste(ModelObject* onto) const {
    const PlanDrag drag(present());
    const auto isItem = [](const PlanDrag::Entry& entry) {
        return entry.row.object->sort() == Sort::Item;
    };
    return canDrop(&drag, {onto}) && (moves_ || std::all_of(drag.entries().begin(), drag.entries().end(), isItem));
}

bool PlanClipboard::paste(ModelObject& onto) {
    const PlanDrag drag(present());
    return drop(session_, drag, {&onto}, !moves_);
}

} // namespace planner::desktop
