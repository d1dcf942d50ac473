#pragma once

#include "planner/model/Plan.h"
#include "planner/model/Relation.h"

#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

#include <cstdint>
#include <unordered_set>
#include <vector>

namespace planner {

/// A step of the flow from which links lead to the end, as the bill takes it.
struct ReachedStep {
    const FlowObject* object; ///< an activity or a resource
    VXMFabFlowNode* node;
    std::vector<std::uint32_t> before; ///< positions of the steps in front of it, as often as they are
    std::uint32_t walkPlace = 0;       ///< when the bill first comes to it on its way from the end of the flow
    double paths = 0;                  ///< on how many ways to the end it counts
};

/// The steps that a bill is made of, in the order of the flow: each comes after those in front of it. Links that close
/// a loop are left out. Ask for it after the bill was computed; it lives no longer than that computation.
class ReachedFlow {
public:
    ReachedFlow(VXMBomGenerator& generator, const ModelObject& root);

    const std::vector<ReachedStep>& steps() const { return steps_; }
    const ReachedStep& end() const { return steps_.back(); }
    bool empty() const { return steps_.empty(); }
    bool isOnWay(const ModelObject& object) const { return objects_.contains(&object); }
    bool hasLoop() const { return hasLoop_; }

    /// Whether what a step lists in that relation counts in the bill.
    bool counts(const ReachedStep& step, Relation relation) const;

private:
    class Walk;

    VXMBomGenerator& generator_;
    std::vector<ReachedStep> steps_;
    std::unordered_set<const ModelObject*> objects_;
    bool hasLoop_ = false;
};

/// The list of a step in that relation, whether the step has it itself or, as a resource, by its behaviour: there
/// `assigned` counts as first assigned, which is what the bill makes of it. Null when there is none.
const ObjectList* listOfStep(const FlowObject& step, Relation relation);

} // namespace planner
