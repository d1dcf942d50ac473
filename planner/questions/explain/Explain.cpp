// The mentions of an item are gathered from the plan, those of what it is a part of from the record; then each
// occurrence of the record says what became of one mention. A mention that has none says why by itself: its step isn't
// reached, its list doesn't count, or it is a fastener that isn't chosen. Lists that don't count have no part in the
// record, so what they hold in structures is gathered from the plan as well.

#include "planner/questions/explain/Explain.h"

#include "planner/model/Contents.h"

#include <algorithm>
#include <array>
#include <map>
#include <tuple>

namespace planner {

namespace {

constexpr std::array<std::string_view, 6> kRoleWords{"first_assigned", "assigned", "removed",
                                                     "outputs",        "fastener", "items"};
constexpr std::array<std::string_view, 6> kRoleTexts{"first assigned", "assigned", "removed",
                                                     "put out",        "fastened", "listed"};
constexpr std::array<std::string_view, kOutcomes> kOutcomeWords{
    "stands",      "taken-away",      "takes-away",      "nothing-to-take-away", "first-assigned-in",
    "assigned-in", "named-in",        "went-with-whole", "only-worked-on",       "left-out-in-station",
    "not-reached", "hidden-fastener", "no-fastener",     "outside-root",         "adds-nothing"};

bool isFastener(const ModelObject& object) {
    return object.sort() == Sort::Item && static_cast<const Item&>(object).kind() == ItemKind::Fastener;
}

const ModelObject* stationAround(const ModelObject& step) {
    const ModelObject* above = static_cast<const FlowObject&>(step).container();
    for (; above; above = static_cast<const FlowObject*>(above)->container()) {
        if (above->sort() == Sort::Activity && static_cast<const Activity*>(above)->kind() == ActivityKind::Station) {
            return above;
        }
    }
    return nullptr;
}

/// The process or resource at the very top of what a step stands in.
const ModelObject* outermostAround(const ModelObject& step) {
    const ModelObject* top = &step;
    while (const ModelObject* const above = static_cast<const FlowObject*>(top)->container()) {
        top = above;
    }
    return top;
}

/// Whether a fastener is among those that a step sets in the bill.
bool setsFastener(const VXMFabFlowNode& step, const ModelObject& fastener) {
    for (int position = 1; position <= step.GetNumberOfFasteners(); ++position) {
        if (ModelObject::behind(step.GetFasteners(position)) == &fastener) {
            return true;
        }
    }
    return false;
}

/// The explanations in the making.
class Explainer {
public:
    Explainer(const Plan& plan, const RecordedBill& bill, const std::vector<const ModelObject*>& items)
        : plan_(plan), bill_(bill), occurrences_(bill.occurrences()) {
        for (const ModelObject* item : items) {
            wanted_.emplace(item, made_.size());
            made_.push_back({item, {}, {}, {}});
        }
    }

    std::vector<Explanation> make() {
        placeSteps();
        gatherMentions();
        gatherIdleWholes();
        gatherWholes();
        for (std::uint32_t place = 0; place < occurrences_.size(); ++place) {
            if (const auto found = wanted_.find(occurrences_[place].object); found != wanted_.end()) {
                takeOccurrence(found->second, place);
            }
        }
        takeRows();
        for (Explanation& each : made_) {
            finish(each);
        }
        return std::move(made_);
    }

private:
    using Key = std::tuple<std::size_t, const ModelObject*, Role, const ModelObject*>;

    struct StepPlace {
        std::size_t order;       // in the flow; behind it for steps that aren't reached
        const ReachedStep* step; // null for those
        bool isInRoot;
    };

    /// An item in a list that doesn't count, or in the structure of such an item.
    struct Idle {
        const ModelObject* item;
        const ModelObject* step;
        Role role;
    };

    void placeSteps() {
        const auto place = [this](const FlowObject& step, const ReachedStep* reached, bool isInRoot) {
            if (places_.emplace(&step, StepPlace{places_.size(), reached, isInRoot}).second) {
                steps_.push_back(&step);
            }
        };
        for (const ReachedStep& step : bill_.flow().steps()) {
            place(*step.object, &step, true);
        }
        auto& root = static_cast<FlowObject&>(const_cast<ModelObject&>(bill_.root())); // walked, not changed
        walkContents(root, [&](const FlowObject& step, const ModelObject*) { place(step, nullptr, true); });
        walkPlan(const_cast<Plan&>(plan_),
                 [&](const FlowObject& step, const ModelObject*) { place(step, nullptr, false); });
    }

    void gatherMentions() {
        for (const FlowObject* step : steps_) {
            if (step->sort() == Sort::Behaviour) {
                continue; // its lists are those of its resource
            }
            takeList(*step, Relation::FirstAssigned, Role::FirstAssigned);
            takeList(*step, Relation::Outputs, Role::PutOut);
            if (step->sort() == Sort::Activity) {
                takeList(*step, Relation::Assigned, Role::Assigned);
                takeList(*step, Relation::Removed, Role::Removed);
                takeFurtherItems(static_cast<const Activity&>(*step));
            } else {
                takeFasteners(*step, listOfStep(*step, Relation::FirstAssigned), true);
            }
        }
    }

    Mention* mention(const ModelObject& item, const ModelObject& step, Role role) {
        const auto found = wanted_.find(&item);
        return found == wanted_.end() ? nullptr : &mentionOf(found->second, step, role, nullptr);
    }

    Mention& mentionOf(std::size_t item, const ModelObject& step, Role role, const ModelObject* partOf) {
        std::vector<Mention>& mentions = made_[item].mentions;
        const auto [found, isNew] = mentions_.try_emplace(Key(item, &step, role, partOf), mentions.size());
        if (isNew) {
            const auto place = places_.find(&step);
            const bool reached = place != places_.end() && place->second.step;
            mentions.push_back({&step, role, partOf, 0, reached ? place->second.step->paths : 0, {}});
        }
        return mentions[found->second];
    }

    void takeList(const FlowObject& step, Relation relation, Role role) {
        const ObjectList* const list = listOfStep(step, relation);
        if (!list || list->empty()) {
            return;
        }
        const bool isIdle = !counts(places_.at(&step), role);
        for (const ModelObject* item : *list) {
            if (Mention* const found = mention(*item, step, role)) {
                ++found->entries;
            }
            if (isIdle && structureOf(*item)) {
                idle_.push_back({item, &step, role});
            }
        }
    }

    /// Whether what a step lists in that role counts in the bill.
    bool counts(const StepPlace& place, Role role) const {
        return place.step && bill_.flow().counts(*place.step, relationOf(role));
    }

    void takeFurtherItems(const Activity& step) {
        for (const ObjectList* list : {&step.firstAssigned, &step.assigned, &step.removed, &step.items}) {
            takeFasteners(step, list, false);
        }
        for (const ModelObject* item : step.items) {
            Mention* const found = isFastener(*item) ? nullptr : mention(*item, step, Role::Listed);
            if (found) {
                ++found->entries;
            }
        }
    }

    /// Fasteners are set wherever they are listed: at an activity once, at a resource as often as it lists them.
    void takeFasteners(const FlowObject& step, const ObjectList* list, bool eachEntry) {
        if (!list) {
            return;
        }
        for (const ModelObject* item : *list) {
            Mention* const found = isFastener(*item) ? mention(*item, step, Role::Joined) : nullptr;
            if (found) {
                found->entries = eachEntry ? found->entries + 1 : 1;
            }
        }
    }

    /// Takes the mentions of what stands in the structure of an item that is listed where it doesn't count.
    void gatherIdleWholes() {
        std::unordered_map<const ModelObject*, std::vector<std::pair<const ModelObject*, Role>>> lists; // by part
        while (!idle_.empty()) {
            const Idle whole = idle_.back();
            idle_.pop_back();
            const ObjectList* const parts = structureOf(*whole.item);
            for (const ModelObject* part : parts ? parts->entries() : std::vector<ModelObject*>()) {
                auto& known = lists[part];
                const std::pair list(whole.step, whole.role);
                if (known.size() == kMostIdleLists || std::find(known.begin(), known.end(), list) != known.end()) {
                    continue;
                }
                known.push_back(list);
                if (const auto found = wanted_.find(part); found != wanted_.end()) {
                    mentionOf(found->second, *whole.step, whole.role, whole.item);
                }
                idle_.push_back({part, whole.step, whole.role});
            }
        }
    }

    void gatherWholes() {
        for (const Item* whole : plan_.items) {
            for (const Relation relation : {Relation::Holds, Relation::Children}) {
                const ObjectList* const parts = listOf(*whole, relation);
                if (!parts) {
                    continue;
                }
                for (const ModelObject* part : *parts) {
                    const auto found = wanted_.find(part);
                    if (found != wanted_.end() &&
                        (made_[found->second].wholes.empty() || made_[found->second].wholes.back() != whole)) {
                        made_[found->second].wholes.push_back(whole);
                    }
                }
            }
        }
    }

    const Occurrence* wholeOf(const Occurrence& part) const {
        return part.whole == Occurrence::kNone ? nullptr : &occurrences_[part.whole];
    }

    void takeOccurrence(std::size_t item, std::uint32_t place) {
        const Occurrence& occurrence = occurrences_[place];
        const Occurrence* const whole = wholeOf(occurrence);
        Mention& mention = mentionOf(item, *occurrence.step, occurrence.role, whole ? whole->object : nullptr);
        addResult(mention, resultOf(occurrence)).count += 1;
    }

    /// What became of an occurrence. Something that went with its whole is asked about where the whole went.
    Result resultOf(const Occurrence& occurrence) const {
        const bool removes = occurrence.role == Role::Removed;
        switch (occurrence.fate) {
        case Fate::Shown:
            return {Outcome::Stands};
        case Fate::Stays:
            return {removes ? Outcome::NothingToTakeAway : Outcome::OnlyWorkedOn};
        case Fate::Paired:
            return because(removes ? Outcome::TakesAway : Outcome::TakenAway, occurrence);
        case Fate::AssignedOtherwise:
            return because(occurrences_[occurrence.partner].role == Role::FirstAssigned ? Outcome::FirstAssignedIn
                                                                                        : Outcome::AssignedIn,
                           occurrence);
        case Fate::Repeat:
            return because(Outcome::NamedIn, occurrence);
        case Fate::BelowRepeat:
            break;
        }
        const Occurrence* gone = &occurrence;
        while (gone->fate == Fate::BelowRepeat) {
            gone = &occurrences_[gone->partner];
        }
        Result result = because(Outcome::WentWithWhole, *gone);
        result.with = gone->object;
        return result;
    }

    Result because(Outcome outcome, const Occurrence& gone) const {
        const Occurrence& partner = occurrences_[gone.partner];
        const Occurrence* const whole = wholeOf(partner);
        Result result{outcome, 0, partner.step, partner.role, whole ? whole->object : nullptr};
        const std::size_t here = places_.at(gone.step).order;
        const std::size_t there = places_.at(partner.step).order;
        result.order = there > here ? 1 : there < here ? -1 : 0;
        return result;
    }

    static Result& addResult(Mention& mention, const Result& result) {
        const auto same = [&](const Result& other) {
            return other.outcome == result.outcome && other.step == result.step && other.role == result.role &&
                   other.whole == result.whole && other.with == result.with;
        };
        const auto found = std::find_if(mention.results.begin(), mention.results.end(), same);
        return found != mention.results.end() ? *found : mention.results.emplace_back(result);
    }

    void takeRows() {
        const std::vector<RecordedRow>& rows = bill_.rows();
        for (std::uint32_t row = 0; row < rows.size(); ++row) {
            const Occurrence& shown = occurrences_[rows[row].occurrence];
            const auto found = wanted_.find(shown.object);
            if (found == wanted_.end()) {
                continue;
            }
            made_[found->second].rows.push_back(row);
            const Occurrence* const whole = wholeOf(shown);
            Mention& mention = mentionOf(found->second, *shown.step, shown.role, whole ? whole->object : nullptr);
            addResult(mention, {Outcome::Stands}).rows.push_back(row);
        }
    }

    void finish(Explanation& explanation) {
        for (Mention& mention : explanation.mentions) {
            if (mention.results.empty()) {
                mention.results.push_back(whyNone(explanation, mention));
            }
        }
        std::stable_sort(explanation.mentions.begin(), explanation.mentions.end(),
                         [&](const Mention& left, const Mention& right) {
                             return std::pair(places_.at(left.step).order, left.role) <
                                    std::pair(places_.at(right.step).order, right.role);
                         });
    }

    Result whyNone(const Explanation& explanation, const Mention& mention) const {
        if (mention.role == Role::Listed) {
            return {Outcome::NoFastener};
        }
        const StepPlace& place = places_.at(mention.step);
        if (!place.isInRoot) {
            return {Outcome::OutsideRoot, 0, outermostAround(*mention.step)};
        }
        if (!place.step) {
            return {Outcome::NotReached};
        }
        if (!counts(place, mention.role)) {
            return {Outcome::LeftOutInStation, 0, stationAround(*mention.step)};
        }
        const bool isHidden = mention.role == Role::Joined && !setsFastener(*place.step->node, *explanation.item);
        return {isHidden ? Outcome::HiddenFastener : Outcome::AddsNothing};
    }

    static Relation relationOf(Role role) {
        constexpr std::array<Relation, 6> kRelationsOfRoles{Relation::FirstAssigned, Relation::Assigned,
                                                            Relation::Removed,       Relation::Outputs,
                                                            Relation::Items,         Relation::Items};
        return kRelationsOfRoles[static_cast<std::size_t>(role)];
    }

    const Plan& plan_;
    const RecordedBill& bill_;
    const std::vector<Occurrence>& occurrences_;
    std::unordered_map<const ModelObject*, std::size_t> wanted_;
    std::vector<Explanation> made_;
    std::vector<const FlowObject*> steps_; // of the plan, in the order of their places
    std::unordered_map<const ModelObject*, StepPlace> places_;
    std::map<Key, std::size_t> mentions_;
    std::vector<Idle> idle_;
};

} // namespace

std::string_view outcomeWord(Outcome outcome) {
    return kOutcomeWords[static_cast<std::size_t>(outcome)];
}

std::string_view roleWord(Role role) {
    return kRoleWords[static_cast<std::size_t>(role)];
}

std::string_view roleText(Role role) {
    return kRoleTexts[static_cast<std::size_t>(role)];
}

std::vector<Explanation> explain(const Plan& plan, const RecordedBill& bill,
                                 const std::vector<const ModelObject*>& items) {
    return Explainer(plan, bill, items).make();
}

std::vector<const ModelObject*> itemsCalled(const Plan& plan, std::string_view text) {
    const ModelObject* const byId = plan.find(text);
    if (byId && byId->sort() == Sort::Item) {
        return {byId};
    }
    std::vector<const ModelObject*> named;
    for (const Item* item : plan.items) {
        if (item->name() == text) {
            named.push_back(item);
        }
    }
    return named;
}

} // namespace planner
