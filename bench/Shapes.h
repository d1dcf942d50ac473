#pragma once

#include "bench/PlanDraft.h"

#include <vector>

namespace bench {

/// A kind of plan that is measured at several sizes.
struct Shape {
    const char* name;
    Sample (*make)(int size);
    std::vector<int> sizes;   ///< ascending: elements of the bill, or steps where it has next to none
    bool hasLegacy = false;   ///< whether the legacy algorithm is measured too
    bool isStructure = false; ///< whether a query over the products' structure gives the same bill
};

const std::vector<Shape>& shapes();

} // namespace bench
