#include "planner/edit/Mentions.h"

#include "planner/model/Contents.h"

namespace planner {

namespace {

/// Calls visit(list, object) for each object that a list of the owner names.
template <class Visit>
void visitMentions(ModelObject& owner, Visit visit) {
    for (const Relation relation : kRelations) {
        if (ObjectList* const list = listOf(owner, relation)) {
            for (const ModelObject* entry : *list) {
                if (!isContained(*entry, &owner)) {
                    visit(*list, *entry);
                }
            }
        }
    }
}

} // namespace

std::vector<MentioningList> Mentions::of(const ModelObject& object) {
    if (!made_) {
        make();
    }
    std::vector<MentioningList> result;
    const auto found = byObject_.find(&object);
    if (found != byObject_.end()) {
        for (const auto& [list, mention] : found->second) {
            result.push_back(mention);
        }
    }
    return result;
}

void Mentions::came(const ModelObject& object, ModelObject& owner, ObjectList& list) {
    if (made_) {
        ++byObject_[&object].try_emplace(&list, MentioningList{&owner, &list, 0}).first->second.count;
    }
}

void Mentions::went(const ModelObject& object, const ObjectList& list) {
    if (!made_) {
        return;
    }
    const auto lists = byObject_.find(&object);
    const auto mention = lists->second.find(&list);
    if (--mention->second.count == 0) {
        lists->second.erase(mention);
    }
    if (lists->second.empty()) {
        byObject_.erase(lists);
    }
}

void Mentions::ownerCame(ModelObject& owner) {
    if (made_) {
        visitMentions(owner, [&](ObjectList& list, const ModelObject& object) { came(object, owner, list); });
    }
}

void Mentions::ownerWent(ModelObject& owner) {
    if (made_) {
        visitMentions(owner, [&](const ObjectList& list, const ModelObject& object) { went(object, list); });
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
