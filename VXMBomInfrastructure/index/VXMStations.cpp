#include "VXMBomInfrastructure/index/VXMStations.h"

#include "VXMBomInfrastructure/model/QORISpecObject.h"

#include <utility>

namespace {

bool IsStation(const QORISPPAbstractActivity_var& iActivity) {
    static const QORUnicodeString station("BIWActivityStation");
    const QORISpecObject_var typed(iActivity);
    return typed && typed->IsOfType(station) == 1;
}

/// A climb that ends at the top, where iStops says so, or after some rounds where parents come round in a circle. Gives
/// whether iStops ended it.
template <class Stops>
bool ClimbUntil(QORISPPAbstractActivity_var iActivity, Stops iStops) {
    QORISPPAbstractActivity_var mark; // moved on at each power of two, so that a circle comes past it
    for (unsigned steps = 1; iActivity && !(iActivity == mark); ++steps) {
        if (iStops(iActivity)) {
            return true;
        }
        if ((steps & (steps - 1)) == 0) {
            mark = iActivity;
        }
        iActivity = iActivity->GetParent();
    }
    return false;
}

} // namespace

bool VXMStations::Climb(QORISPPAbstractActivity_var iActivity) {
    return ClimbUntil(std::move(iActivity), &IsStation);
}

bool VXMStations::IsInStation(const QORISPPAbstractActivity_var& iActivity) {
    if (const Answer* const known = _answers.Find(iActivity.Impl())) {
        return *known == Answer::Inside;
    }
    const std::size_t before = _remembered.size();
    Answer answer = Answer::Outside;
    ClimbUntil(iActivity, [&](const QORISPPAbstractActivity_var& iAbove) {
        if (const Answer* const known = _answers.Find(iAbove.Impl())) {
            answer = *known;
            return true;
        }
        _remembered.emplace_back(iAbove);
        answer = IsStation(iAbove) ? Answer::Inside : Answer::Outside;
        return answer == Answer::Inside;
    });
    for (std::size_t place = before; place < _remembered.size(); ++place) {
        Answer& kept = _answers[_remembered[place].Impl()];
        kept = kept == Answer::None ? answer : kept;
    }
    return answer == Answer::Inside;
}
