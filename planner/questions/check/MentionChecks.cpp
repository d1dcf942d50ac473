// Items that no list names, wherever in the plan.

#include "planner/model/Contents.h"
#include "planner/questions/check/CheckWork.h"

#include <unordered_set>

namespace planner {

void checkMentions(CheckWork& work) {
    std::unordered_set<const ModelObject*> named;
    const auto read = [&](const ModelObject& owner) {
        for (const Relation relation : kRelations) {
            if (const ObjectList* const list = listOf(owner, relation)) {
                for (const ModelObject* entry : *list) {
                    entry == &owner ? void() : void(named.insert(entry));
                }
            }
        }
    };
    for (const Item* item : work.plan.items) {
        read(*item);
    }
    walkPlan(work.plan, [&](const FlowObject& object, const ModelObject*) { read(object); });
    for (const Item* item : work.plan.items) {
        if (!named.contains(item)) {
            work.add(CheckCode::UnmentionedItem, *item, called(*item) + " is named by no step and is a part of nothing",
                     "list it where it comes in, or take it out of the plan");
        }
    }
}

} // namespace planner
