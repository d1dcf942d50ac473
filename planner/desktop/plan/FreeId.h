#pragma once

#include <string>

namespace planner {
class Plan;
}

namespace planner::desktop {

/// An id that is free in the plan, "step-7", with the name that goes with it, "Step 7".
struct FreeId {
    std::string id;
    std::string name;
};

FreeId freeId(const Plan& plan, const std::string& word);

} // namespace planner::desktop
