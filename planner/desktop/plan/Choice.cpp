#include "planner/desktop/plan/Choice.h"

#include "planner/desktop/plan/PlanSession.h"

#include <algorithm>

namespace planner::desktop {

Choice::Choice(PlanSession& session) : QObject(&session), session_(session) {
    connect(&session_, &PlanSession::aboutToReplace, this, [this] { choose(nullptr); });
    connect(&session_, &PlanSession::changed, this, &Choice::dropLeft);
}

bool Choice::contains(const ModelObject* object) const {
    return std::any_of(objects_.begin(), objects_.end(), [&](const auto& each) { return each.Get() == object; });
}

void Choice::choose(ModelObject* object) {
    choose(object ? std::vector{object} : std::vector<ModelObject*>());
}

void Choice::choose(const std::vector<ModelObject*>& objects) {
    Objects chosen(objects.begin(), objects.end());
    if (chosen == objects_) {
        return;
    }
    objects_ = std::move(chosen);
    writePicks();
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

void Choice::writePicks() {
    picks()->Empty();
    for (const auto& object : objects_) {
        const auto path = QORVar<QORPathElement>::Adopt(new QORPathElement(object.Get()));
        picks()->AddElement(path.Get());
    }
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
