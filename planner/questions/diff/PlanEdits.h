#pragma once

#include "planner/questions/diff/Diff.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace planner {

/// What names an object in both plans: its id; of a behaviour without one, that of its resource.
std::string keyOf(const ModelObject& object);

/// The objects of a plan by their keys, and what is needed to tell how two plans differ.
class KeyedPlan {
public:
    explicit KeyedPlan(Plan& plan);

    /// The object of that key, null when there is none.
    const ModelObject* find(const std::string& key) const;

    /// All objects that stand in the plan, in its order.
    const std::vector<const ModelObject*>& objects() const { return objects_; }
    const Plan& plan() const { return plan_; }

private:
    const Plan& plan_;
    std::vector<const ModelObject*> objects_;
    std::unordered_map<std::string, const ModelObject*> withoutId_; // by key
};

/// All edits that lead from one plan to the other, as far as a bill can depend on them. Names and shapes play no part.
std::vector<PlanEdit> editsBetween(const KeyedPlan& before, const KeyedPlan& after);

} // namespace planner
