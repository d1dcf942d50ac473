// Steps are taken in the order of the flow, those that aren't reached behind them, and each goes into the kit of its
// place.

#include "planner/questions/kits/Kits.h"

#include "planner/model/Contents.h"
#include "planner/questions/kits/KitsBalance.h"

#include <algorithm>
#include <unordered_set>

namespace planner {

namespace {

/// Where the kit of each step is.
class Places {
public:
    Places(const ModelObject& root, KitsBy by) : root_(root), by_(by) {}

    const ModelObject& of(const ModelObject& step) {
        if (by_ == KitsBy::Step) {
            return step;
        }
        std::vector<const ModelObject*> climbed;
        const ModelObject* place = &step;
        for (;; place = aroundStep(*place)) {
            if (const auto known = known_.find(place); known != known_.end()) {
                place = known->second;
                break;
            }
            climbed.push_back(place);
            if (isPlace(*place)) {
                break;
            }
        }
        for (const ModelObject* each : climbed) {
            known_.emplace(each, place);
        }
        return *place;
    }

private:
    /// What a step stands in, behaviours passed over; null at the top.
    static const ModelObject* aroundStep(const ModelObject& step) {
        const ModelObject* around = static_cast<const FlowObject&>(step).container();
        return around && around->sort() == Sort::Behaviour ? static_cast<const FlowObject*>(around)->container()
                                                           : around;
    }

    bool isPlace(const ModelObject& object) const {
        const ModelObject* const around = aroundStep(object);
        return !around || &object == &root_ || around == &root_ ||
               (object.sort() == Sort::Activity &&
                static_cast<const Activity&>(object).kind() == ActivityKind::Station);
    }

    const ModelObject& root_;
    KitsBy by_;
    std::unordered_map<const ModelObject*, const ModelObject*> known_;
};

/// Counts items, each at the place where it came first.
class Tally {
public:
    explicit Tally(std::vector<KitItem>& items) : items_(items) {}

    void add(const ModelObject& item) {
        const auto [place, isNew] = places_.try_emplace(&item, items_.size());
        if (isNew) {
            items_.push_back({&item});
        }
        ++items_[place->second].number;
    }

private:
    std::vector<KitItem>& items_;
    std::unordered_map<const ModelObject*, std::size_t> places_;
};

/// One kit in the making, from the steps that belong to it.
class KitMaker {
public:
    explicit KitMaker(const ModelObject& place) : kit_{&place, {}, {}, {}, {}} {}

    void take(const FlowObject& step) {
        forEach(listOfStep(step, Relation::FirstAssigned), [this](const ModelObject& item) {
            if (!dynamic_cast<const Fastener*>(&item)) {
                broughtIn_.add(item);
            }
        });
        forEach(listOfStep(step, Relation::Outputs), [this](const ModelObject& item) { putOut_.add(item); });
        if (step.sort() == Sort::Activity) {
            forEach(listOf(step, Relation::Removed), [this](const ModelObject& item) { takenAway_.add(item); });
        }
        takeFasteners(step);
    }

    Kit finish() {
        for (const KitItem& fastener : fasteners_) {
            addFastener(fastener);
        }
        return std::move(kit_);
    }

    bool isEmpty() const {
        return kit_.broughtIn.empty() && kit_.takenAway.empty() && kit_.putOut.empty() && fasteners_.empty();
    }

private:
    template <class Visit>
    static void forEach(const ObjectList* list, Visit visit) {
        if (list) {
            std::for_each(list->begin(), list->end(), [&](const ModelObject* item) { visit(*item); });
        }
    }

    /// At an activity a fastener counts once, in whichever of its lists it is; at a resource as often as it is listed.
    void takeFasteners(const FlowObject& step) {
        std::unordered_set<const ModelObject*> met;
        const bool once = step.sort() == Sort::Activity;
        for (const Relation relation :
             {Relation::FirstAssigned, Relation::Assigned, Relation::Removed, Relation::Items}) {
            forEach(listOfStep(step, relation), [&](const ModelObject& item) {
                if (dynamic_cast<const Fastener*>(&item) && (!once || met.insert(&item).second)) {
                    fastenerTally_.add(item);
                }
            });
        }
    }

    void addFastener(const KitItem& fastener) {
        const std::string type = static_cast<const Fastener&>(*fastener.item).type.value_or("");
        auto found = std::find_if(kit_.fasteners.begin(), kit_.fasteners.end(),
                                  [&](const KitFasteners& each) { return each.type == type; });
        if (found == kit_.fasteners.end()) {
            found = kit_.fasteners.insert(found, {type, {}, 0});
        }
        found->items.push_back(fastener);
        found->number += fastener.number;
    }

    Kit kit_;
    std::vector<KitItem> fasteners_;
    Tally broughtIn_{kit_.broughtIn};
    Tally takenAway_{kit_.takenAway};
    Tally putOut_{kit_.putOut};
    Tally fastenerTally_{fasteners_};
};

/// The steps of a root: those of the flow in its order, then the rest in that of the plan.
std::vector<const FlowObject*> stepsInOrder(const RecordedBill& bill) {
    std::vector<const FlowObject*> steps;
    for (const ReachedStep& step : bill.flow().steps()) {
        steps.push_back(step.object);
    }
    walkContents(static_cast<FlowObject&>(const_cast<ModelObject&>(bill.root())), // walked, not changed
                 [&](const FlowObject& object, const ModelObject*) {
                     if (object.sort() != Sort::Behaviour && !bill.flow().isOnWay(object)) {
                         steps.push_back(&object);
                     }
                 });
    return steps;
}

} // namespace

Kits kitsOf(const Plan& plan, const RecordedBill& bill, KitsBy by) {
    Places places(bill.root(), by);
    std::unordered_map<const ModelObject*, std::size_t> kitAt;
    std::vector<std::unique_ptr<KitMaker>> makers;
    std::vector<const FlowObject*> steps = stepsInOrder(bill);
    std::reverse(steps.begin(), steps.end()); // a place comes where its last step does
    for (const FlowObject* step : steps) {
        const ModelObject& place = places.of(*step);
        if (kitAt.try_emplace(&place, makers.size()).second) {
            makers.push_back(std::make_unique<KitMaker>(place));
        }
    }
    std::reverse(makers.begin(), makers.end());
    std::for_each(steps.rbegin(), steps.rend(), [&](const FlowObject* step) {
        makers[makers.size() - 1 - kitAt.at(&places.of(*step))]->take(*step);
    });
    Kits kits{by};
    for (const auto& maker : makers) {
        if (!maker->isEmpty()) {
            kits.kits.push_back(maker->finish());
        }
    }
    balanceKits(plan, bill, kits);
    return kits;
}

} // namespace planner
