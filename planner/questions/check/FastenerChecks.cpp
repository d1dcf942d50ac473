// Fasteners: their types, and whether what they join is there when they are set. A part is there from the step on that
// brings it in or puts it out, itself or as a part of something, until it is taken out on every way.

#include "planner/file/JsonText.h"
#include "planner/model/Contents.h"
#include "planner/questions/check/CheckWork.h"
#include "planner/questions/check/Loops.h"
#include "planner/questions/check/Tokens.h"

#include "VXMBomInfrastructure/nodes/VXMFastenerTypes.h"

#include <algorithm>
#include <functional>
#include <map>
#include <unordered_map>
#include <unordered_set>

namespace planner {

namespace {

// Types

std::string letters(std::string_view name) {
    std::string plain;
    for (const char letter : name) {
        const bool isCapital = letter >= 'A' && letter <= 'Z';
        if (isCapital || (letter >= 'a' && letter <= 'z')) {
            plain += isCapital ? static_cast<char>(letter - 'A' + 'a') : letter;
        }
    }
    return plain;
}

/// The type that is meant, where only case, blanks or hyphens differ; else all of them.
std::string typeAdvice(const std::string& type) {
    std::string all;
    for (const VXMFastenerType& each : VXMFastenerTypes) {
        if (!type.empty() && letters(each.name) == letters(type)) {
            return "write " + inQuotes(each.name);
        }
        all += (all.empty() ? "" : ", ") + std::string(each.name);
    }
    return "use one of " + all;
}

void checkTypes(CheckWork& work) {
    for (const Item* item : work.plan.items) {
        const auto* const fastener = dynamic_cast<const Fastener*>(item);
        if (fastener && !fastener->isOfKnownType()) {
            const std::string type = fastener->type.value_or("");
            work.add(CheckCode::UnknownFastenerType, *fastener,
                     called(*fastener) + (fastener->type ? " is of the type " + inQuotes(type) + ", which no bill shows"
                                                         : std::string(" has no type, so no bill shows it")),
                     typeAdvice(type));
        }
    }
}

// Joined parts

/// What holds what, upwards: the wholes of each item. Resources are in between where products have them as children.
class Wholes {
public:
    explicit Wholes(const Plan& plan) {
        std::vector<std::vector<std::uint32_t>> wholes;
        const auto numberOf = [&](const ModelObject& object) {
            const auto known = numbers_.emplace(&object, static_cast<std::uint32_t>(objects_.size()));
            if (known.second) {
                objects_.push_back(&object);
                wholes.emplace_back();
            }
            return known.first->second;
        };
        const auto enter = [&](const ModelObject& whole) {
            const std::uint32_t number = numberOf(whole);
            for (const Relation relation : {Relation::Children, Relation::Holds}) {
                const ObjectList* const list = listOf(whole, relation);
                for (const ModelObject* part : list ? list->entries() : std::vector<ModelObject*>()) {
                    wholes[numberOf(*part)].push_back(number);
                }
            }
        };
        for (const Item* item : plan.items) {
            enter(*item);
        }
        for (Resource* resource : plan.resources) {
            walkContents(*resource, [&](const FlowObject& object, const ModelObject*) {
                object.sort() == Sort::Resource ? enter(object) : void();
            });
        }
        for (const auto& each : wholes) {
            graph_.targets.insert(graph_.targets.end(), each.begin(), each.end());
            graph_.endVertex();
        }
        components_ = componentsOf(graph_);
        members_.resize(components_.count);
        for (std::uint32_t vertex = 0; vertex < graph_.size(); ++vertex) {
            members_[components_.of[vertex]].push_back(vertex);
        }
    }

    /// Calls visit(object, tokens) for each object that has tokens: those given to it and to its parts at any depth.
    template <class Visit>
    void spread(const std::vector<std::pair<const ModelObject*, std::uint64_t>>& given, Visit visit) const {
        std::map<std::uint32_t, std::uint64_t, std::greater<>> open; // a component comes before those that it leads to
        for (const auto& [object, tokens] : given) {
            open[components_.of[numbers_.at(object)]] |= tokens;
        }
        while (!open.empty()) {
            const auto [component, tokens] = *open.begin();
            open.erase(open.begin());
            for (const std::uint32_t member : members_[component]) {
                visit(*objects_[member], tokens);
                for (std::size_t edge = graph_.beginOf(member); edge < graph_.ends[member]; ++edge) {
                    const std::uint32_t whole = components_.of[graph_.targets[edge]];
                    if (whole != component) {
                        open[whole] |= tokens;
                    }
                }
            }
        }
    }

private:
    Graph graph_;
    Components components_;
    std::vector<std::vector<std::uint32_t>> members_; // by component
    std::vector<const ModelObject*> objects_;
    std::unordered_map<const ModelObject*, std::uint32_t> numbers_;
};

/// A fastener that says what it joins, at a step that sets it.
struct Setting {
    const Fastener* fastener;
    std::uint32_t step;
    std::vector<const ModelObject*> absent = {};
};

/// What steps do with an item, in the order of the flow.
struct Handling {
    std::vector<std::uint32_t> brought;
    std::vector<std::uint32_t> taken;
};

/// A part, and the settings that want it.
struct Part {
    const ModelObject* item;
    std::vector<std::uint32_t> settings;
};

class JoinChecks {
public:
    explicit JoinChecks(CheckWork& work) : work_(work), steps_(work.flow.steps()) {
        for (std::uint32_t step = 0; step < steps_.size(); ++step) {
            readStep(step);
        }
    }

    void run() {
        if (settings_.empty()) {
            return;
        }
        const Wholes wholes(work_.plan);
        std::vector<std::uint64_t> buffer;
        for (std::size_t first = 0; first < parts_.size(); first += 64) {
            std::vector<TokenEvent> events = eventsOf(first, wholes);
            carryTokens(work_.flow, events, buffer, [&](std::uint32_t asker, std::uint64_t here) {
                if (here == 0) {
                    settings_[askers_[asker].setting].absent.push_back(askers_[asker].part);
                }
            });
        }
        for (const Setting& setting : settings_) {
            tell(setting);
        }
    }

private:
    struct Asker {
        std::uint32_t setting;
        const ModelObject* part;
    };

    void readStep(std::uint32_t step) {
        std::unordered_set<const Fastener*> set;
        for (const Relation relation :
             {Relation::FirstAssigned, Relation::Outputs, Relation::Assigned, Relation::Items, Relation::Removed}) {
            const ObjectList* const list = listOfStep(*steps_[step].object, relation);
            for (const ModelObject* item : list ? list->entries() : std::vector<ModelObject*>()) {
                if (relation == Relation::Removed) {
                    handling_[item].taken.push_back(step);
                    continue;
                }
                if (relation == Relation::FirstAssigned || relation == Relation::Outputs) {
                    handling_[item].brought.push_back(step);
                }
                const auto* const fastener = dynamic_cast<const Fastener*>(item);
                if (fastener && !fastener->joins.empty() && set.insert(fastener).second) {
                    addSetting(*fastener, step);
                }
            }
        }
    }

    void addSetting(const Fastener& fastener, std::uint32_t step) {
        for (const ModelObject* item : fastener.joins) {
            const auto known = partNumbers_.emplace(item, parts_.size());
            if (known.second) {
                parts_.push_back({item, {}});
            }
            std::vector<std::uint32_t>& wanting = parts_[known.first->second].settings;
            if (wanting.empty() || wanting.back() != settings_.size()) {
                wanting.push_back(static_cast<std::uint32_t>(settings_.size()));
            }
        }
        settings_.push_back({&fastener, step});
    }

    /// What happens to 64 parts up to the last step that asks for one.
    std::vector<TokenEvent> eventsOf(std::size_t first, const Wholes& wholes) {
        std::vector<TokenEvent> events;
        std::vector<std::pair<const ModelObject*, std::uint64_t>> given;
        std::uint32_t last = 0;
        askers_.clear();
        for (std::size_t i = first; i < std::min(first + 64, parts_.size()); ++i) {
            const std::uint64_t token = std::uint64_t{1} << (i - first);
            given.emplace_back(parts_[i].item, token);
            for (const std::uint32_t setting : parts_[i].settings) {
                const std::uint32_t step = settings_[setting].step;
                events.push_back({step, 1, TokenEvent::Action::Ask, token, static_cast<std::uint32_t>(askers_.size())});
                askers_.push_back({setting, parts_[i].item});
                last = std::max(last, step);
            }
        }
        wholes.spread(given, [&](const ModelObject& object, std::uint64_t tokens) {
            const auto handled = handling_.find(&object);
            if (handled != handling_.end()) {
                addSteps(handled->second.brought, {0, 0, TokenEvent::Action::Raise, tokens, 0}, last, events);
                addSteps(handled->second.taken, {0, 2, TokenEvent::Action::Drop, tokens, 0}, last, events);
            }
        });
        return events;
    }

    static void addSteps(const std::vector<std::uint32_t>& steps, TokenEvent event, std::uint32_t last,
                         std::vector<TokenEvent>& events) {
        for (const std::uint32_t step : steps) {
            if (step <= last) {
                event.step = step;
                events.push_back(event);
            }
        }
    }

    void tell(const Setting& setting) {
        if (setting.absent.empty()) {
            return;
        }
        const ModelObject& step = *steps_[setting.step].object;
        std::vector<const ModelObject*> related{&step};
        related.insert(related.end(), setting.absent.begin(), setting.absent.end());
        work_.add(CheckCode::JoinedPartAbsent, *setting.fastener,
                  called(*setting.fastener) + " is set in " + called(step) + ", where " + calledAll(setting.absent) +
                      (setting.absent.size() == 1 ? " isn't there" : " aren't there"),
                  "bring in what it joins at a step before, set it at a later one, or mend its \"joins\"",
                  std::move(related));
    }

    CheckWork& work_;
    const std::vector<ReachedStep>& steps_;
    std::unordered_map<const ModelObject*, Handling> handling_;
    std::vector<Setting> settings_; // in the order of the flow
    std::vector<Part> parts_;
    std::unordered_map<const ModelObject*, std::size_t> partNumbers_;
    std::vector<Asker> askers_; // of the present 64 parts
};

} // namespace

void checkFasteners(CheckWork& work) {
    checkTypes(work);
    JoinChecks(work).run();
}

} // namespace planner
