// Steps that add less to the bill than they list: those off the flow, those shut in a station, those of a process that
// isn't where the work is.

#include "planner/bill/BillRemarks.h"
#include "planner/file/JsonText.h"
#include "planner/model/Contents.h"
#include "planner/questions/check/CheckWork.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace planner {

namespace {

// A process without steps

bool hasSteps(const Resource& top) {
    bool found = false;
    walkContents(const_cast<Resource&>(top), [&](const FlowObject& object, const ModelObject*) {
        const auto* const behaviour =
            object.sort() == Sort::Behaviour ? static_cast<const Behaviour*>(&object) : nullptr;
        found = found || (behaviour && (!behaviour->activities.empty() || !behaviour->assigned.empty() ||
                                        !behaviour->outputs.empty()));
    });
    return found;
}

void checkProcess(CheckWork& work) {
    const Activity& process = *work.plan.process();
    if (&work.root != &process || !process.children.empty()) {
        return;
    }
    const auto& resources = work.plan.resources.entries();
    const auto busy =
        std::find_if(resources.begin(), resources.end(), [](const Resource* each) { return hasSteps(*each); });
    if (busy != resources.end()) {
        work.add(CheckCode::ProcessWithoutSteps, process,
                 "the process has no steps, and the bill of the plan is that of the process",
                 "look at a resource with --root " + (*busy)->id() + ", or give the process steps", {*busy});
    }
}

// Off the flow

const ModelObject* stepAround(const ModelObject& step) {
    const ModelObject* above = static_cast<const FlowObject&>(step).container();
    while (above && above->sort() == Sort::Behaviour) {
        above = static_cast<const FlowObject*>(above)->container();
    }
    return above;
}

/// What to do about a step that is off the flow. Where nothing leads to the last step of a process, none is on it.
std::string wayAdvice(const CheckWork& work) {
    const auto* const process = work.root.sort() == Sort::Activity ? static_cast<const Activity*>(&work.root) : nullptr;
    const Activity* const last = process && !process->children.empty() ? process->children.entries().back() : nullptr;
    if (!last || work.flow.isOnWay(*last) || !last->linksIn().empty()) {
        return "link it to a step that is on a way there, or take it out: as it is it adds nothing to the bill";
    }
    return "no link leads to " + called(*last) + ", which stands last in " + called(*process) +
           ": link steps to it, or have one stand last that others are linked to; as it is nothing is on a way there";
}

/// A step that is off the flow is told with those inside it that are off the flow as well.
void checkWays(CheckWork& work) {
    const ModelObject* const end = work.flow.empty() ? &work.root : work.flow.end().object;
    std::vector<std::size_t> inside;                              // by what is told
    std::unordered_map<const ModelObject*, std::size_t> toldWith; // steps that are off the flow
    const std::size_t first = work.findings.size();
    const std::string advice = wayAdvice(work);
    for (const ModelObject* step : stepsFrom(work.root)) {
        if (step == &work.root || work.flow.isOnWay(*step)) {
            continue;
        }
        const auto around = toldWith.find(stepAround(*step));
        if (around != toldWith.end()) {
            ++inside[around->second];
            toldWith.emplace(step, around->second);
            continue;
        }
        toldWith.emplace(step, inside.size());
        inside.push_back(0);
        work.add(CheckCode::StepOffFlow, *step,
                 "no way leads from " + called(*step) + " to the end of the flow, " + called(*end), advice);
    }
    for (std::size_t i = 0; i < inside.size(); ++i) {
        work.findings[first + i].message +=
            inside[i] == 0 ? "" : ", nor from " + counted(inside[i], "step") + " inside it";
    }
}

// In a station

/// The station that a step stands in. Asks for many steps don't climb the same way twice.
class Stations {
public:
    const Activity* around(const Activity& step) {
        std::vector<const Activity*> climbed;
        const Activity* above = step.parent();
        while (above && above->kind() != ActivityKind::Station && !known_.contains(above)) {
            climbed.push_back(above);
            above = above->parent();
        }
        const auto known = known_.find(above);
        const Activity* const station = known == known_.end() ? above : known->second;
        for (const Activity* each : climbed) {
            known_.emplace(each, station);
        }
        return station;
    }

private:
    std::unordered_map<const Activity*, const Activity*> known_;
};

bool hasFastener(const ObjectList& list) {
    return std::any_of(list.begin(), list.end(),
                       [](const ModelObject* object) { return dynamic_cast<const Fastener*>(object) != nullptr; });
}

/// What the lists of a step hold that doesn't count, list by list. What it only works on the bill wouldn't show anyway.
std::string leftOut(const CheckWork& work, const ReachedStep& step, std::vector<const ModelObject*>& items) {
    constexpr std::array<Relation, 4> kLists{Relation::FirstAssigned, Relation::Removed, Relation::Items,
                                             Relation::Outputs};
    std::string text;
    for (const Relation relation : kLists) {
        const ObjectList* const list = listOfStep(*step.object, relation);
        if (!list || list->empty() || work.flow.counts(step, relation) ||
            (relation == Relation::Items && !hasFastener(*list))) {
            continue;
        }
        text += (text.empty() ? "" : ", ") + std::string(1, '"') + std::string(relationText(relation)) + "\" (" +
                std::to_string(list->size()) + ")";
        items.insert(items.end(), list->begin(), list->end());
    }
    return text;
}

void checkStations(CheckWork& work) {
    Stations stations;
    for (const ReachedStep& step : work.flow.steps()) {
        if (step.object->sort() != Sort::Activity || work.flow.counts(step, Relation::Removed)) {
            continue;
        }
        const auto& activity = static_cast<const Activity&>(*step.object);
        std::vector<const ModelObject*> related{stations.around(activity)};
        const std::string lists = leftOut(work, step, related);
        if (lists.empty()) {
            continue;
        }
        const std::string message = called(activity) + " stands in the station " + called(*related.front()) +
                                    ", so the bill leaves out what it lists: " + lists;
        work.add(CheckCode::LeftOutInStation, activity, message,
                 "list what comes in under \"first_assigned\" of a loading activity, and the rest outside the station",
                 std::move(related));
    }
}

} // namespace

void checkSteps(CheckWork& work) {
    checkProcess(work);
    checkWays(work);
    checkStations(work);
}

} // namespace planner
