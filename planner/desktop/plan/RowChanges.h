#pragma once

#include "planner/desktop/plan/PlanRows.h"

#include <cstddef>
#include <vector>

namespace planner::desktop {

/// One step that brings rows in line: rows go, come (from their position in the rows that are wanted, which is the one
/// that they then have), or one moves to another position, counted without it.
struct RowChange {
    enum Kind { Remove, Insert, Move };

    Kind kind;
    std::size_t first;
    std::size_t count;
    std::size_t target = 0;

    friend bool operator==(const RowChange&, const RowChange&) = default;
};

/// The steps, to be made in their order, that turn the rows shown into those wanted. A row that is wanted where it is
/// stays, whatever comes or goes around it; cost grows with the number of rows.
std::vector<RowChange> rowChanges(std::vector<PlanRow> shown, const std::vector<PlanRow>& wanted);

} // namespace planner::desktop
