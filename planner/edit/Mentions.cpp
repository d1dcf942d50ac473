#include "planner/edit/Mentions.h"

#include "planner/model/Contents.h"

namespace planner {

namespace {

/// Calls visit(list, item) for each item that a list of the owner names.
template <class Visit>
void visitItems(ModelObject& owner, Visit visit) {
    for (const Relation relation : kRelations) {
        if (ObjectList* const list = listOf(owner, relation)) {
            for (const ModelObject* entry : *list) {
                if (entry->sort() == Sort::Item) {
                    visit(*list, *entry);
                }
            }
        }
    }
}

} // namespace

std::vector<Mention> Mentions::of(const ModelObject& item) {
    if (!made_) {
        make();
    }
    std::vector<Mention> result;
    const auto found = byItem_.find(&item);
    if (found != byItem_.end()) {
        for (const auto& [list, mention] : found->second) {
            result.push_back(mention);
        }
    }
    return result;
}

void Mentions::came(const ModelObject& item, ModelObject& owner, ObjectList& list) {
    if (made_) {
        ++byItem_[&item].try_emplace(&list, Mention{&owner, &list, 0}).first->second.count;
    }
}

void Mentions::went(const ModelObject& item, const ObjectList& list) {
    if (!made_) {
        return;
    }
    const auto lists = byItem_.find(&item);
    const auto mention = lists->second.find(&list);
    if (--mention->second.count == 0) {
        lists->second.erase(mention);
    }
    if (lists->second.empty()) {
        byItem_.erase(lists);
    }
}

void Mentions::ownerCame(ModelObject& owner) {
    if (made_) {
        visitItems(owner, [&](ObjectList& list, const ModelObject& item) { came(item, owner, list); });
    }
}

void Mentions::ownerWent(ModelObject& owner) {
    if (made_) {
        visitItems(owner, [&](const ObjectList& list, const ModelObject& item) { went(item, list); });
    }
}

void Mentions::make() {
    made_ = true;
    for (Item* item : plan_.items) {
        ownerCame(*item);
    }
    walkPlan(plan_, [this](FlowObject& object, ModelObject*) { ownerCame(object); });
}

} // namespace planner
