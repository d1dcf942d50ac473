#include "VXMBomInfrastructure/index/VXMStations.h"

#include "VXMBomInfrastructure/model/QORISpecObject.h"

#include <unordered_set>

namespace {

bool IsStation(const QORISPPAbstractActivity_var& iActivity) {
    static const QORUnicodeString station("BIWActivityStation");
    const QORISpecObject_var typed(iActivity);
    return typed && typed->IsOfType(station) == 1;
}

} // namespace

bool VXMStations::Climb(QORISPPAbstractActivity_var iActivity) {
    QORISPPAbstractActivity_var mark; // moved on at each power of two, so that a circle comes past it
    for (unsigned steps = 1; iActivity && !(iActivity == mark); ++steps) {
        if (IsStation(iActivity)) {
            return true;
        }
        if ((steps & (steps - 1)) == 0) {
            mark = iActivity;
        }
        iActivity = iActivity->GetParent();
    }
    return false;
}

bool VXMStations::IsInStation(const QORISPPAbstractActivity_var& iActivity) {
    std::vector<QORBaseUnknown_var> climbed;
    std::unordered_set<const QORBaseUnknown*> onTheWay;
    bool found = false;
    for (QORISPPAbstractActivity_var activity = iActivity; activity; activity = activity->GetParent()) {
        const auto known = _answers.find(activity.Impl());
        if (known != _answers.end()) {
            found = known->second;
            break;
        }
        if (!onTheWay.insert(activity.Impl()).second) {
            break;
        }
        climbed.emplace_back(activity);
        found = IsStation(activity);
        if (found) {
            break;
        }
    }
    for (QORBaseUnknown_var& activity : climbed) {
        _answers.emplace(activity.Impl(), found);
        _remembered.push_back(std::move(activity));
    }
    return found;
}
