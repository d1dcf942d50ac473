#pragma once

#include "planner/bill/Bill.h"
#include "planner/model/Plan.h"
#include "planner/model/Relation.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

class VXMBomGenerator;

namespace planner {

/// A plan with its bill: the generator of that root has computed it.
struct BilledPlan {
    Plan& plan;
    ModelObject& root;
    VXMBomGenerator& generator;
    const Bill& bill;
};

/// One edit of a plan that bills can depend on. Objects are those of the new plan, as far as they stand in it.
struct PlanEdit {
    enum class Kind : std::uint8_t {
        ObjectAdded,    ///< an item, a step, a resource
        ObjectGone,     ///< likewise
        StepMoved,      ///< stands in something else
        StepsReordered, ///< what stands in the object stands there in another order
        Altered,        ///< is of another kind, of another type, or counts as assigned or no longer
        ListGains,      ///< a list names something else, or once more
        ListLoses,      ///< likewise
        ListReordered,  ///< what a list names in both plans stands in another order
        LinkAdded,
        LinkGone,
        LinksReordered ///< the links that are in both plans stand in another order
    };

    Kind kind;
    const ModelObject* object; ///< whose edit it is: an item, a step, the owner of a list, the beginning of a link: of
                               ///< links in another order, of the first that stands elsewhere
    const ModelObject* other;  ///< what a list names, the end of a link, what a step stands in now; else null
    Relation relation;         ///< of a list
    const ModelObject* before; ///< what was altered, as the old plan has it; else null
};
inline constexpr std::array<std::string_view, 11> kPlanEditWords{
    "added",      "gone",           "moved",      "reordered", "altered",        "list-gains",
    "list-loses", "list-reordered", "link-added", "link-gone", "links-reordered"};

/// One difference between two bills, with what stands behind it.
struct BillChange {
    enum class Kind : std::uint8_t {
        Added,
        Gone,
        Moved, ///< stands below something else
        Renamed,
        Altered,  ///< is of another kind, or of another type of fastener
        Reordered ///< what stands below it stands there in another order
    };

    Kind kind;
    const ModelObject* before;       ///< in the old plan; null for what was added, and for the top of the bill
    const ModelObject* after;        ///< in the new plan; null for what is gone, and for the top of the bill
    const ModelObject* parentBefore; ///< what it stood below, null for the top
    const ModelObject* parentAfter;  ///< what it stands below, null for the top
    std::size_t elements;            ///< how many elements came or went with it, itself included; 1 for other changes
    std::vector<PlanEdit> edits;     ///< that stand behind it, the nearest first, up to kMostEdits
    bool hasMoreEdits;
};
inline constexpr std::array<std::string_view, 6> kBillChangeWords{"added",   "gone",    "moved",
                                                                  "renamed", "altered", "reordered"};
inline constexpr std::size_t kMostEdits = 8;

/// What is different in the new bill, by kind, and for each kind in the order of the bill. Objects are the same when
/// their ids are. Subtrees that are equal are looked at once.
std::vector<BillChange> diffBills(const BilledPlan& before, const BilledPlan& after);

} // namespace planner
