#include "planner/questions/diff/EditsBehind.h"

#include "planner/questions/check/ReachedFlow.h"

#include <algorithm>
#include <array>
#include <set>
#include <unordered_map>

namespace planner {

namespace {

using Kind = PlanEdit::Kind;
using Numbers = std::vector<std::size_t>; // of edits

/// The most steps that are looked at for one element, and how far up its wholes are.
constexpr std::size_t kMostSteps = 200;
constexpr std::size_t kMostWholes = 20;

/// One of the two plans, with what the search asks of it.
class Side {
public:
    Side(const BilledPlan& billed, const KeyedPlan& keyed) : keyed_(keyed), flow_(billed.generator, billed.root) {
        for (const ModelObject* owner : keyed.objects()) {
            for (const Relation relation : kRelations) {
                const ObjectList* const list = owner->sort() == Sort::Item ? nullptr : listOf(*owner, relation);
                for (const ModelObject* item : list ? list->entries() : std::vector<ModelObject*>()) {
                    std::vector<const FlowObject*>& steps = namedBy_[item];
                    const auto* const step = static_cast<const FlowObject*>(owner);
                    if (steps.empty() || steps.back() != step) {
                        steps.push_back(step);
                    }
                }
            }
        }
        for (const ReachedStep& step : flow_.steps()) {
            paths_[step.object] += step.paths;
        }
    }

    /// Finds for each step the nearest edit of the flow at it or behind it.
    void spreadEdits(const std::unordered_map<std::string, std::size_t>& edits) {
        std::unordered_map<const ModelObject*, std::size_t> ofSteps;
        for (const auto& [key, number] : edits) {
            ofSteps.emplace(keyed_.find(key), number);
        }
        const auto& steps = flow_.steps();
        std::vector<std::size_t> nearest(steps.size(), kNone);
        for (std::size_t i = steps.size(); i-- > 0;) {
            const auto own = ofSteps.find(steps[i].object);
            nearest[i] = own == ofSteps.end() ? nearest[i] : own->second;
            for (const std::uint32_t before : steps[i].before) {
                nearest[before] = nearest[before] == kNone ? nearest[i] : nearest[before];
            }
            if (nearest[i] != kNone) {
                nearest_.emplace(steps[i].object, nearest[i]);
            }
        }
    }

    const std::vector<const FlowObject*>& stepsNaming(const std::string& key) const {
        static const std::vector<const FlowObject*> none;
        const auto found = namedBy_.find(keyed_.find(key));
        return found == namedBy_.end() ? none : found->second;
    }

    /// On how many paths a step counts, 0 off the way to the end of the flow.
    double pathsOf(const std::string& step) const {
        const auto found = paths_.find(keyed_.find(step));
        return found == paths_.end() ? 0 : found->second;
    }

    std::size_t nearestEdit(const std::string& step) const {
        const auto found = nearest_.find(keyed_.find(step));
        return found == nearest_.end() ? kNone : found->second;
    }

    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

private:
    const KeyedPlan& keyed_;
    ReachedFlow flow_;
    std::unordered_map<const ModelObject*, std::vector<const FlowObject*>> namedBy_; // by item
    std::unordered_map<const ModelObject*, double> paths_;                           // by step
    std::unordered_map<const ModelObject*, std::size_t> nearest_;                    // by step
};

/// A step as a flow knows it: a behaviour goes by its resource.
const FlowObject& flowStepOf(const FlowObject& step) {
    const ModelObject* const container = step.sort() == Sort::Behaviour ? step.container() : nullptr;
    return container ? static_cast<const FlowObject&>(*container) : step;
}

class Search {
public:
    Search(const BilledPlan& before, const BilledPlan& after, const std::vector<BillNode>& treeBefore,
           const std::vector<BillNode>& treeAfter)
        : keyedBefore_(before.plan), keyedAfter_(after.plan), edits_(editsBetween(keyedBefore_, keyedAfter_)),
          sides_{{Side(before, keyedBefore_), Side(after, keyedAfter_)}}, trees_{&treeBefore, &treeAfter} {
        std::array<std::unordered_map<std::string, std::size_t>, 2> ofFlow;
        for (std::size_t i = 0; i < edits_.size(); ++i) {
            sort(i, ofFlow);
        }
        sides_[0].spreadEdits(ofFlow[0]);
        sides_[1].spreadEdits(ofFlow[1]);
    }

    void explain(PlacedChange& placed) {
        if (placed.change.kind == BillChange::Kind::Renamed) {
            return; // the name is the edit
        }
        found_.clear();
        met_.clear();
        isOrder_ = placed.change.kind == BillChange::Kind::Reordered;
        isFarAway_ = false;
        if (isOrder_) {
            takeOrders(placed.change.after);
        }
        const std::vector<std::string> keys = keysOf(placed);
        takeItemEdits(keys, false);
        for (const bool always : {false, true}) {
            for (std::size_t i = 0; i < keys.size() && (!always || found_.empty()); ++i) {
                takeSteps(sides_[0].stepsNaming(keys[i]), always);
                takeSteps(sides_[1].stepsNaming(keys[i]), always);
            }
        }
        for (std::size_t i = 0; isFarAway_ && i < ofFlow_.size(); ++i) {
            take(ofFlow_[i]);
        }
        if (found_.empty()) {
            takeItemEdits(keys, true);
        }
        for (const Numbers* some : {&ofFlow_, &ofOrder_, &ofItems_}) {
            if (found_.empty()) {
                found_ = *some;
            }
        }
        placed.change.hasMoreEdits = found_.size() > kMostEdits;
        found_.resize(std::min(found_.size(), kMostEdits));
        for (const std::size_t number : found_) {
            placed.change.edits.push_back(edits_[number]);
        }
    }

private:
    static bool isOfItem(const PlanEdit& edit) {
        return edit.object->sort() == Sort::Item || edit.kind == Kind::ListGains || edit.kind == Kind::ListLoses;
    }

    static void putFew(Numbers& few, std::size_t number) { few.size() <= kMostEdits ? few.push_back(number) : void(); }

    /// Enters an edit of an order; whether it is one that is found by nothing else.
    bool sortOrder(std::size_t number) {
        const PlanEdit& edit = edits_[number];
        const bool isOfStructure = edit.kind == Kind::ListReordered && edit.object->sort() == Sort::Item;
        if (edit.kind == Kind::StepsReordered || edit.kind == Kind::LinksReordered ||
            edit.kind == Kind::ListReordered) {
            isOfStructure ? orderOf_[edit.object].push_back(number) : putFew(ofOrder_, number);
        }
        isOfStructure ? putFew(ofItems_, number) : void();
        return edit.kind == Kind::LinksReordered || edit.kind == Kind::ListReordered;
    }

    /// Enters an edit under what it is found by.
    void sort(std::size_t number, std::array<std::unordered_map<std::string, std::size_t>, 2>& ofFlow) {
        const PlanEdit& edit = edits_[number];
        if (sortOrder(number)) {
            return;
        }
        putFew(isOfItem(edit) ? ofItems_ : ofFlow_, number);
        if (isOfItem(edit)) {
            byItem_[keyOf(*edit.object)].push_back(number);
            edit.other ? byItem_[keyOf(*edit.other)].push_back(number) : void();
            return;
        }
        const std::string key = keyOf(*edit.object);
        const bool isLink = edit.kind == Kind::LinkAdded || edit.kind == Kind::LinkGone;
        isLink ? void() : byStep_[key].push_back(number);
        const std::string step = keyOf(flowStepOf(static_cast<const FlowObject&>(*edit.object)));
        if (edit.kind != Kind::LinkAdded && edit.kind != Kind::ObjectAdded) {
            ofFlow[0].emplace(step, number);
        }
        if (edit.kind != Kind::LinkGone && edit.kind != Kind::ObjectGone) {
            ofFlow[1].emplace(step, number);
        }
    }

    void take(std::size_t number) {
        const bool isOfType = edits_[number].kind == Kind::Altered && edits_[number].object->sort() == Sort::Item;
        if (isOfType && isOrder_) {
            return; // a type has no part in an order
        }
        if (found_.size() <= kMostEdits && met_.insert(number).second) {
            found_.push_back(number);
        }
    }

    /// Edits of the order below an object, or, for null, at the top of the bill.
    void takeOrders(const ModelObject* whole) {
        const auto own = orderOf_.find(whole);
        for (const std::size_t number : whole ? (own == orderOf_.end() ? Numbers() : own->second) : ofOrder_) {
            take(number);
        }
    }

    void takeAll(const std::unordered_map<std::string, Numbers>& edits, const std::string& key) {
        const auto found = edits.find(key);
        if (found == edits.end()) {
            return;
        }
        for (const std::size_t number : found->second) {
            if (found_.size() > kMostEdits) {
                return;
            }
            take(number);
        }
    }

    /// Edits of an element, which comes first, and of its wholes: those that are about them, or those by which a whole
    /// gains or loses another part.
    void takeItemEdits(const std::vector<std::string>& keys, bool ofOthers) {
        const auto isOfOther = [&](const PlanEdit& edit) {
            const bool isOfPart = edit.kind == Kind::ListGains || edit.kind == Kind::ListLoses;
            return isOfPart && edit.object->sort() == Sort::Item && edit.object->id() != keys.front() &&
                   std::find(keys.begin(), keys.end(), keyOf(*edit.other)) == keys.end();
        };
        for (const std::string& key : keys) {
            const auto found = byItem_.find(key);
            for (const std::size_t number : found == byItem_.end() ? Numbers() : found->second) {
                if (found_.size() <= kMostEdits && isOfOther(edits_[number]) == ofOthers) {
                    take(number);
                }
            }
        }
    }

    /// Edits of steps that name an element and of what they stand in; of the flow behind them where they count
    /// otherwise than they did, or always.
    void takeSteps(const std::vector<const FlowObject*>& steps, bool always) {
        for (std::size_t i = 0; i < std::min(steps.size(), kMostSteps) && found_.size() <= kMostEdits; ++i) {
            const std::string key = keyOf(flowStepOf(*steps[i]));
            std::size_t height = 0;
            for (const ModelObject* each = steps[i]; each && height < kMostWholes;
                 each = static_cast<const FlowObject*>(each)->container()) {
                takeAll(byStep_, keyOf(*each));
                ++height;
            }
            const bool isOtherwise = sides_[0].pathsOf(key) != sides_[1].pathsOf(key);
            if (always || isOtherwise) {
                const bool isNear = takeNearest(key);
                isFarAway_ = isFarAway_ || (isOtherwise && !isNear);
            }
        }
    }

    /// The edits of the flow at a step or behind it, in both plans; whether there are any.
    bool takeNearest(const std::string& step) {
        bool isAny = false;
        for (const Side& side : sides_) {
            const std::size_t nearest = side.nearestEdit(step);
            if (nearest != Side::kNone) {
                take(nearest);
                isAny = true;
            }
        }
        return isAny;
    }

    /// The element, then what it stood and stands below, as far up as these came, went or moved with it; of elements in
    /// another order these.
    std::vector<std::string> keysOf(const PlacedChange& placed) const {
        std::vector<std::string> keys;
        const std::array<std::uint32_t, 2> positions{placed.before, placed.after};
        const std::array<std::uint32_t, 2> wholes{placed.wholesBefore, placed.wholesAfter};
        for (std::size_t side = 0; side < 2; ++side) {
            const std::vector<BillNode>& tree = *trees_[side];
            std::uint32_t position = positions[side];
            for (std::size_t i = 0; i <= wholes[side] && position != 0; ++i) {
                keys.push_back(tree[position].object()->id());
                position = tree[position].parent;
            }
            if (placed.change.kind == BillChange::Kind::Reordered) {
                const auto& children = tree[positions[side]].children;
                for (std::size_t i = 0; i < std::min(children.size(), kMostWholes); ++i) {
                    keys.push_back(tree[children[i]].object()->id());
                }
            }
        }
        return keys;
    }

    KeyedPlan keyedBefore_;
    KeyedPlan keyedAfter_;
    std::vector<PlanEdit> edits_;
    std::array<Side, 2> sides_;
    std::array<const std::vector<BillNode>*, 2> trees_;
    std::unordered_map<std::string, Numbers> byItem_;
    std::unordered_map<std::string, Numbers> byStep_;
    std::unordered_map<const ModelObject*, Numbers> orderOf_; // by what has a structure in another order
    // The first few edits of steps and links; of those by which steps, links or the lists of steps stand in another
    // order; of the others.
    Numbers ofFlow_;
    Numbers ofOrder_;
    Numbers ofItems_;
    // For the change at hand. It is one of order; and a step counts otherwise for it without an edit at or behind it.
    Numbers found_;
    bool isOrder_ = false;
    bool isFarAway_ = false;
    std::set<std::size_t> met_;
};

} // namespace

void findEditsBehind(const BilledPlan& before, const BilledPlan& after, const std::vector<BillNode>& treeBefore,
                     const std::vector<BillNode>& treeAfter, std::vector<PlacedChange>& changes) {
    if (changes.empty()) {
        return;
    }
    Search search(before, after, treeBefore, treeAfter);
    for (PlacedChange& change : changes) {
        search.explain(change);
    }
}

} // namespace planner
