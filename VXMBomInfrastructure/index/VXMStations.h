// Which activities stand in stations.
//
// In place of: a climb from each activity to the root, 100,000 steps each where a plan is nested 100,000 deep.
// Why the same: the answer for an activity is 1 when it is a station itself, else that for its parent, and neither
// changes while a walk runs. Answers go by the objects themselves, and are kept once a climb has come to its end.
// What it gains: a plan nested 10,000 deep takes 0.04 s in place of 5.7.

#pragma once

#include "VXMBomInfrastructure/index/VXMByObject.h"
#include "VXMBomInfrastructure/model/QORISPPAbstractActivity.h"

#include <vector>

/// For the length of one walk. Holds on to the activities that it remembers.
class VXMStations {
public:
    /// Whether the activity or one above it is a station; a null handle isn't.
    bool IsInStation(const QORISPPAbstractActivity_var& iActivity);

    /// The direct form: the climb. Parents that come round in a circle end it as a top does.
    static bool Climb(QORISPPAbstractActivity_var iActivity);

private:
    enum class Answer : unsigned char { None, Outside, Inside };

    VXMByObject<Answer> _answers;
    std::vector<QORBaseUnknown_var> _remembered;
};
