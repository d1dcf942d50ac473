#include "planner/desktop/plan/Choice.h"

#include "planner/desktop/plan/PlanSession.h"

#include "QORPlatform/visualization/QORXSO.h"

#include <algorithm>
#include <unordered_set>

namespace planner::desktop {

Choice::Choice(PlanSession& session) : QObject(&session), session_(session) {
    connect(&session_, &PlanSession::aboutToReplace, this, [this] { choose(nullptr); });
    connect(&session_, &PlanSession::replaced, this, &Choice::listen);
    connect(&session_, &PlanSession::changed, this, &Choice::dropLeft);
    listen();
}

/// Subscribes to the set, which counts as its own subscriber: this object outlives it.
void Choice::listen() {
    QORXSO* const set = picks();
    set->Subscribe(set, QORXSO::CHANGED(), [this](auto&&...) { followPicks(); });
}

bool Choice::contains(const ModelObject* object) const {
    return std::any_of(objects_.begin(), objects_.end(), [&](const auto& each) { return each.Get() == object; });
}

void Choice::choose(ModelObject* object) {
    choose(object ? std::vector{object} : std::vector<ModelObject*>());
}

void Choice::choose(const std::vector<ModelObject*>& objects) {
    Objects chosen;
    std::unordered_set<const ModelObject*> met;
    for (ModelObject* const object : objects) {
        if (met.insert(object).second) {
            chosen.emplace_back(object);
        }
    }
    if (chosen == objects_) {
        return;
    }
    objects_ = std::move(chosen);
    picks()->SetContent({objects.begin(), objects.end()});
    Q_EMIT changed();
}

/// What no longer stands in the plan isn't chosen any more.
void Choice::dropLeft() {
    std::vector<ModelObject*> left;
    for (const auto& object : objects_) {
        if (object->standsInPlan()) {
            left.push_back(object.Get());
        }
    }
    choose(left);
}

QORXSO* Choice::picks() const {
    return session_.frmEditor().GetPSO();
}

void Choice::followPicks() {
    Objects picked;
    for (int position = 1; position <= picks()->GetSize(); ++position) {
        if (ModelObject* const object = ModelObject::behind(picks()->GetElement(position))) {
            picked.emplace_back(object);
        }
    }
    if (picked != objects_) {
        objects_ = std::move(picked);
        Q_EMIT changed();
    }
}

} // namespace planner::desktop
