#pragma once

#include "planner/model/Plan.h"
#include "planner/questions/explain/RecordedBill.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace planner {

/// What became of a mention of an item.
enum class Outcome : std::uint8_t {
    Stands,            ///< in the bill, in `rows`
    TakenAway,         ///< by the removal in `step`
    TakesAway,         ///< the removal itself: the assignment in `step` went with it
    NothingToTakeAway, ///< a removal that found no assignment
    FirstAssignedIn,   ///< dropped: first assigned in `step`
    AssignedIn,        ///< dropped: assigned in `step` as well
    NamedIn,           ///< dropped: named in `step`, which the bill comes to first
    WentWithWhole,     ///< part of something that was dropped, being named in `step`, which the bill comes to first
    OnlyWorkedOn,      ///< assigned, but never brought in
    LeftOutInStation,  ///< inside the station `step`, where only what loading activities bring in counts
    NotReached,        ///< no way leads from its step to the end of the flow
    HiddenFastener,    ///< by the choice of fasteners
    NoFastener,        ///< among the further items of a step, of which a bill shows fasteners only
    OutsideRoot,       ///< the step stands outside of what the bill is of, in `step`
    AddsNothing        ///< not followed: where paths multiply, other occurrences of the item decide
};
inline constexpr std::size_t kOutcomes = static_cast<std::size_t>(Outcome::AddsNothing) + 1;

/// The word of an outcome for programs.
std::string_view outcomeWord(Outcome outcome);

/// The words of a role: that of the plan file ("first_assigned", "fastener") and that for people.
std::string_view roleWord(Role role);
std::string_view roleText(Role role);

/// What became of some of the occurrences of a mention.
struct Result {
    Outcome outcome;
    std::uint64_t count = 0;            ///< occurrences; 0 where the mention has none
    const ModelObject* step = nullptr;  ///< the step that decided; see Outcome
    Role role = Role::FirstAssigned;    ///< what that step does with the item, or with what it is a part of
    const ModelObject* whole = nullptr; ///< what the item is a part of there, null when the step names it itself
    const ModelObject* with = nullptr;  ///< what the item went with, of a WentWithWhole
    int order = 0; ///< the step comes after this mention in the flow (1), before it (-1), or is the same (0)
    std::vector<std::uint32_t> rows = {}; ///< of those that stand
};

/// The most lists that are told of those that don't count and have an item only as part of something.
inline constexpr std::size_t kMostIdleLists = 100;

/// A step that lists an item, or something that the item is a part of.
struct Mention {
    const ModelObject* step;
    Role role;
    const ModelObject* partOf = nullptr; ///< what the item is directly a part of; null when the step lists it itself
    unsigned entries = 0;                ///< how often the list has it; 0 for a part
    double paths = 0;                    ///< on how many ways from its step to the end of the flow it counts
    std::vector<Result> results = {};
};

/// Why an item is in the bill, or isn't.
struct Explanation {
    const ModelObject* item;
    std::vector<std::uint32_t> rows;        ///< where it stands in the bill, from 0 in the order of the document
    std::vector<const ModelObject*> wholes; ///< the items whose structure it is directly a part of
    std::vector<Mention> mentions;          ///< in the order of the flow; steps off it come last
};

/// Explains some items of a plan, in their order. Costs one look at the plan and one at the record.
std::vector<Explanation> explain(const Plan& plan, const RecordedBill& bill,
                                 const std::vector<const ModelObject*>& items);

/// The items that go by that id or, when none does, by that name.
std::vector<const ModelObject*> itemsCalled(const Plan& plan, std::string_view text);

} // namespace planner
