#pragma once

#include "planner/bill/Bill.h"
#include "planner/model/Plan.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class VXMBomGenerator;

namespace planner {

/// What can be wrong in a plan that is a good file.
enum class CheckCode : std::uint8_t {
    LoopInLinks,
    LoopInFlow,
    LoopInStructure,
    ProcessWithoutSteps,
    StepOffFlow,
    LeftOutInStation,
    RemovalWithoutAssignment,
    StaysThoughRemoved,
    RemovedAndNamedAgain,
    UnknownFastenerType,
    JoinedPartAbsent,
    UnmentionedItem
};

/// A code as it is written, and what findings of it have in common, as a heading.
struct CheckRule {
    CheckCode code;
    std::string_view word;
    std::string_view heading;
};
inline constexpr std::array<CheckRule, 12> kCheckRules{
    {{CheckCode::LoopInLinks, "loop-in-links", "Links that lead round in a circle"},
     {CheckCode::LoopInFlow, "loop-in-flow", "Steps that come before themselves, by links and nesting"},
     {CheckCode::LoopInStructure, "loop-in-structure", "Items that hold themselves"},
     {CheckCode::ProcessWithoutSteps, "process-without-steps", "A process without steps, beside resources with some"},
     {CheckCode::StepOffFlow, "step-off-flow", "Steps on no way to the end of the flow"},
     {CheckCode::LeftOutInStation, "left-out-in-station", "Steps in a station whose lists don't count"},
     {CheckCode::RemovalWithoutAssignment, "removal-without-assignment", "Removals of what isn't assigned"},
     {CheckCode::StaysThoughRemoved, "stays-though-removed", "Items that are removed and stay in the bill"},
     {CheckCode::RemovedAndNamedAgain, "removed-and-named-again", "Items that are removed and named again"},
     {CheckCode::UnknownFastenerType, "unknown-fastener-type", "Fasteners of a type that no bill shows"},
     {CheckCode::JoinedPartAbsent, "joined-part-absent", "Fasteners that are set before what they join is there"},
     {CheckCode::UnmentionedItem, "unmentioned-item", "Items that nobody mentions"}}};
constexpr const CheckRule& ruleOf(CheckCode code) {
    return kCheckRules[static_cast<std::size_t>(code)];
}

/// One thing that is wrong in a plan. The objects are those of the plan that was checked.
struct Finding {
    CheckCode code;
    const ModelObject* object;               ///< where it is, never null
    std::string message;                     ///< what is wrong, without an end mark
    std::string advice;                      ///< what to do
    std::vector<const ModelObject*> path;    ///< of a loop: all of it, each leads to the next and the last to the first
    std::vector<const ModelObject*> related; ///< what else has a part in it, most important first
};

/// Everything that is wrong, in the order of the codes, and for each code in the order of the plan. The root is an
/// activity or a resource of the plan, as for a bill; items, structures and links are looked at in the whole plan. The
/// bill is computed on the way.
std::vector<Finding> checkPlan(Plan& plan, ModelObject& root);

/// The same beside a bill that is there: the generator of that root has computed it.
std::vector<Finding> checkPlan(Plan& plan, ModelObject& root, VXMBomGenerator& generator, const Bill& bill);

} // namespace planner
