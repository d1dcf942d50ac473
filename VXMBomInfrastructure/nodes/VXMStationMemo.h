#pragma once

#include "VXMBomInfrastructure/model/QORISPPAbstractActivity.h"

#include <unordered_map>

/// Tells of activities whether they stand in a station, and remembers the answer for every activity that it climbed
/// past: for the length of one computation each is asked once, however deep the plan is nested.
class VXMStationMemo {
public:
    /// Whether iActivity or an activity above it is of the station's model type; a null handle isn't.
    bool IsInStation(QORISPPAbstractActivity_var iActivity);

private:
    std::unordered_map<int, bool> _answers; // by identity number
};
