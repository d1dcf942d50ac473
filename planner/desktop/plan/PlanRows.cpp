#include "planner/desktop/plan/PlanRows.h"

#include "planner/model/Contents.h"

namespace planner::desktop {

namespace {

void addItems(ModelObject& owner, std::vector<PlanRow>& rows) {
    for (const Relation relation : kRelations) {
        const ObjectList* const list = listOf(owner, relation);
        for (ModelObject* const object : list ? list->entries() : std::vector<ModelObject*>()) {
            if (!isContained(*object, &owner)) {
                rows.push_back({object, relation});
            }
        }
    }
}

} // namespace

std::vector<PlanRow> rowsBelow(Plan& plan, ModelObject* object) {
    std::vector<PlanRow> rows;
    if (!object) {
        rows.push_back({plan.process()});
        for (Resource* const resource : plan.resources) {
            rows.push_back({resource});
        }
        return rows;
    }
    addItems(*object, rows);
    visitContained(*object, [&](FlowObject& contained) { rows.push_back({&contained}); });
    return rows;
}

bool hasRowsBelow(ModelObject& object) {
    for (const Relation relation : kRelations) {
        const ObjectList* const list = listOf(object, relation);
        if (list && !list->empty()) {
            return true;
        }
    }
    const auto* const activities = activitiesIn(object);
    return (activities && !activities->empty()) ||
           (object.sort() == Sort::Resource && static_cast<Resource&>(object).behaviour());
}

QString relationName(Relation relation) {
    constexpr std::array<const char*, kRelations.size()> kNames{"first assigned", "assigned", "removed", "listed",
                                                                "output",         "child",    "held",    "joined"};
    return kNames[static_cast<std::size_t>(relation)];
}

} // namespace planner::desktop
