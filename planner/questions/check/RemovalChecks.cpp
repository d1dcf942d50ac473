// What becomes of removals. The bill pairs each removal of an item with one assignment of it, as often as both count:
// once for each way from their steps to the end of the flow. It goes from the end backwards, so the last removals get
// a partner first. What stands in the bill afterwards is taken from the bill itself.

#include "planner/questions/check/CheckWork.h"
#include "planner/questions/check/Tokens.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace planner {

namespace {

/// Where an item is named: a step, and how often its lists do it.
struct Naming {
    std::uint32_t step;
    std::uint32_t times;
};

/// The namings that count of an item that some step removes.
struct Removed {
    const ModelObject* item;
    std::vector<Naming> removals;
    std::vector<Naming> assignments;    ///< first assigned, or assigned
    std::vector<std::uint32_t> comings; ///< steps that name it otherwise than to remove it
    std::uint32_t firstRemoval() const { return removals.front().step; }
    std::uint32_t lastComing() const { return comings.empty() ? 0 : comings.back(); }
};

void addNaming(std::vector<Naming>& namings, std::uint32_t step) {
    if (!namings.empty() && namings.back().step == step) {
        ++namings.back().times;
    } else {
        namings.push_back({step, 1});
    }
}

class RemovalChecks {
public:
    explicit RemovalChecks(CheckWork& work) : work_(work), steps_(work.flow.steps()) {
        visitCounting({Relation::Removed}, [this](std::uint32_t step, const ModelObject& item, Relation) {
            const auto known = numbers_.emplace(&item, removed_.size());
            if (known.second) {
                removed_.push_back({&item, {}, {}, {}});
            }
            addNaming(removed_[known.first->second].removals, step);
        });
        visitCounting({Relation::FirstAssigned, Relation::Assigned, Relation::Outputs, Relation::Items},
                      [this](std::uint32_t step, const ModelObject& item, Relation relation) {
                          noteComing(step, item, relation);
                      });
        for (const BillElement& element : work.bill) {
            if (element.level == 1) {
                standing_.insert(element.object);
            }
        }
    }

    void run() {
        for (const Removed& each : removed_) {
            checkPartners(each);
        }
        const std::vector<std::vector<std::uint32_t>> again = findComingsAgain();
        for (std::size_t i = 0; i < removed_.size(); ++i) {
            if (!again[i].empty()) {
                tellAgain(removed_[i], again[i]);
            } else if (standing_.contains(removed_[i].item)) {
                tellStays(removed_[i]);
            }
        }
    }

private:
    /// Calls visit(step, item, relation) for what the steps list, as far as it counts, in the order of the flow.
    template <class Visit>
    void visitCounting(const std::vector<Relation>& relations, Visit visit) {
        for (std::uint32_t step = 0; step < steps_.size(); ++step) {
            for (const Relation relation : relations) {
                const ObjectList* const list = listOfStep(*steps_[step].object, relation);
                if (!list || list->empty() || !work_.flow.counts(steps_[step], relation)) {
                    continue;
                }
                for (const ModelObject* item : *list) {
                    visit(step, *item, relation);
                }
            }
        }
    }

    void noteComing(std::uint32_t step, const ModelObject& item, Relation relation) {
        const auto known = numbers_.find(&item);
        if (known == numbers_.end() || (relation == Relation::Items && !dynamic_cast<const Fastener*>(&item))) {
            return;
        }
        Removed& removed = removed_[known->second];
        if (removed.comings.empty() || removed.comings.back() != step) {
            removed.comings.push_back(step);
        }
        if (relation == Relation::FirstAssigned || relation == Relation::Assigned) {
            addNaming(removed.assignments, step);
        }
    }

    double nodes(const std::vector<Naming>& namings) const {
        double count = 0;
        for (const Naming& each : namings) {
            count += each.times * steps_[each.step].paths;
        }
        return count;
    }

    static std::size_t times(const std::vector<Naming>& namings) {
        std::size_t count = 0;
        for (const Naming& each : namings) {
            count += each.times;
        }
        return count;
    }

    std::vector<const ModelObject*> objectsOf(const std::vector<std::uint32_t>& steps) const {
        std::vector<const ModelObject*> objects(steps.size());
        std::transform(steps.begin(), steps.end(), objects.begin(),
                       [this](std::uint32_t step) { return steps_[step].object; });
        return objects;
    }

    std::vector<const ModelObject*> objectsOf(const std::vector<Naming>& namings) const {
        std::vector<const ModelObject*> objects(namings.size());
        std::transform(namings.begin(), namings.end(), objects.begin(),
                       [this](const Naming& naming) { return steps_[naming.step].object; });
        return objects;
    }

    /// Removals that find no assignment left when it is their turn.
    void checkPartners(const Removed& removed) {
        double left = nodes(removed.assignments);
        if (left >= nodes(removed.removals)) {
            return;
        }
        std::vector<Naming> turns = removed.removals;
        std::sort(turns.begin(), turns.end(), [this](const Naming& first, const Naming& second) {
            return steps_[first.step].walkPlace < steps_[second.step].walkPlace;
        });
        for (const Naming& turn : turns) {
            if (left <= 0) {
                tellNoPartner(removed, turn.step);
            }
            left -= turn.times * steps_[turn.step].paths;
        }
    }

    void tellNoPartner(const Removed& removed, std::uint32_t step) {
        const ModelObject& remover = *steps_[step].object;
        std::string message = called(remover) + " removes " + called(*removed.item) + ", ";
        std::string advice = "assign it at a step before, or take it out of \"removed\"";
        if (!removed.assignments.empty()) {
            message +=
                "but other removals have taken away all of its " + counted(times(removed.assignments), "assignment");
        } else if (!removed.comings.empty()) {
            message += "which is put out or listed, but never assigned; a removal takes away assignments alone";
        } else {
            message += "which no step assigns";
            advice += "; what came in as a part of something goes with the whole";
        }
        work_.add(CheckCode::RemovalWithoutAssignment, remover, std::move(message), std::move(advice), {removed.item});
    }

    /// By item: the steps that name it and come after one that removes it.
    std::vector<std::vector<std::uint32_t>> findComingsAgain() {
        std::vector<std::vector<std::uint32_t>> again(removed_.size());
        std::vector<std::size_t> asked;
        for (std::size_t i = 0; i < removed_.size(); ++i) {
            if (removed_[i].lastComing() > removed_[i].firstRemoval()) {
                asked.push_back(i);
            }
        }
        std::sort(asked.begin(), asked.end(), [this](std::size_t left, std::size_t right) {
            return removed_[left].firstRemoval() < removed_[right].firstRemoval();
        });
        std::vector<std::uint64_t> buffer;
        for (std::size_t first = 0; first < asked.size(); first += 64) {
            std::vector<TokenEvent> events;
            for (std::size_t i = first; i < std::min(first + 64, asked.size()); ++i) {
                addEvents(asked[i], std::uint64_t{1} << (i - first), events);
            }
            carryTokens(work_.flow, events, buffer, [&](std::uint32_t asker, std::uint64_t here) {
                if (here != 0) {
                    again[askers_[asker].item].push_back(askers_[asker].step);
                }
            });
        }
        return again;
    }

    void addEvents(std::size_t item, std::uint64_t token, std::vector<TokenEvent>& events) {
        const Removed& removed = removed_[item];
        for (const Naming& removal : removed.removals) {
            events.push_back({removal.step, 1, TokenEvent::Action::Raise, token, 0});
        }
        for (const std::uint32_t step : removed.comings) {
            if (step > removed.firstRemoval()) {
                events.push_back({step, 0, TokenEvent::Action::Ask, token, static_cast<std::uint32_t>(askers_.size())});
                askers_.push_back({item, step});
            }
        }
    }

    void tellAgain(const Removed& removed, const std::vector<std::uint32_t>& again) {
        const bool stands = standing_.contains(removed.item);
        std::vector<const ModelObject*> related = objectsOf(removed.removals);
        std::string message = called(*removed.item) + " is removed in " + calledAll(related) + " and named again in " +
                              calledAll(objectsOf(again)) + ", which comes later; the bill " +
                              (stands ? "has it" : "doesn't have it");
        const std::vector<const ModelObject*> later = objectsOf(again);
        related.insert(related.end(), later.begin(), later.end());
        work_.add(CheckCode::RemovedAndNamedAgain, *removed.item, std::move(message),
                  "a removal goes with the last assignment, be it a later one: give the second use an item of its own, "
                  "or take out the removal",
                  std::move(related));
    }

    void tellStays(const Removed& removed) {
        std::vector<const ModelObject*> related = objectsOf(removed.removals);
        const std::string message = called(*removed.item) + " is removed in " + calledAll(related) +
                                    " and stays in the bill: " + whyStays(removed);
        const char* const advice = isFastener(removed)
                                       ? "take it out of the lists of the steps, its removal included"
                                       : "remove it as often as it counts: once for each assignment, on as many paths";
        const std::vector<const ModelObject*> assigners = objectsOf(removed.assignments);
        related.insert(related.end(), assigners.begin(), assigners.end());
        work_.add(CheckCode::StaysThoughRemoved, *removed.item, message, advice, std::move(related));
    }

    static std::string timesText(std::size_t times) {
        return times == 1 ? "once" : times == 2 ? "twice" : std::to_string(times) + " times";
    }

    static bool isFastener(const Removed& removed) { return dynamic_cast<const Fastener*>(removed.item) != nullptr; }

    std::string whyStays(const Removed& removed) const {
        const std::size_t assigned = times(removed.assignments);
        const std::size_t gone = times(removed.removals);
        if (isFastener(removed)) {
            return "a step that removes a fastener lists it too, and so it is shown";
        }
        if (assigned > gone) {
            return "it is assigned " + timesText(assigned) + " and removed " + timesText(gone);
        }
        if (nodes(removed.assignments) > nodes(removed.removals)) {
            return "it counts on several paths, assigned on " + pathsText(removed.assignments) + " and removed on " +
                   pathsText(removed.removals);
        }
        return "it is put out, or comes in with a structure, where no removal reaches it";
    }

    std::string pathsText(const std::vector<Naming>& namings) const {
        const double count = nodes(namings);
        return count < 1e9 ? std::to_string(static_cast<std::int64_t>(count)) : "more than a billion";
    }

    struct Asker {
        std::size_t item;
        std::uint32_t step;
    };

    CheckWork& work_;
    const std::vector<ReachedStep>& steps_;
    std::vector<Removed> removed_;
    std::unordered_map<const ModelObject*, std::size_t> numbers_;
    std::unordered_set<const ModelObject*> standing_; // what stands at the top of the bill
    std::vector<Asker> askers_;
};

} // namespace

void checkRemovals(CheckWork& work) {
    if (!work.flow.empty()) {
        RemovalChecks(work).run();
    }
}

} // namespace planner
