// The bill is gathered from the end of the flow backwards along its links. A step that is not reached that way adds
// nothing, whatever it lists; of a step that is reached, its place and the sort of its lists decide.

#include "planner/bill/BillRemarks.h"

#include "planner/file/JsonText.h"
#include "planner/model/Contents.h"

#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"

#include <algorithm>
#include <iterator>

namespace planner {

namespace {

constexpr std::size_t kNamed = 3;

bool isStep(const ModelObject& object) {
    return object.sort() == Sort::Resource ||
           (object.sort() == Sort::Activity && static_cast<const Activity&>(object).isStep());
}

VXMFabFlowNode* nodeOf(VXMBomGenerator& generator, const ModelObject& step) {
    return generator.CheckUse(QORBaseUnknown_var(const_cast<ModelObject*>(&step)));
}

/// What the lists of some steps have to offer to a bill.
struct Offer {
    bool anything = false;      ///< any item is listed
    bool brings = false;        ///< an item comes in or is put out where that counts
    bool shutInStation = false; ///< the same where it doesn't count: inside a station
    bool fasteners = false;     ///< a fastener is listed
};

bool holdsFastener(const ObjectList& list) {
    return std::any_of(list.begin(), list.end(),
                       [](const ModelObject* object) { return dynamic_cast<const Fastener*>(object) != nullptr; });
}

void addOffer(const Activity& activity, VXMBomGenerator& generator, Offer& offer) {
    for (const ObjectList* list : {&activity.firstAssigned, &activity.assigned, &activity.removed, &activity.items}) {
        offer.anything = offer.anything || !list->empty();
        offer.fasteners = offer.fasteners || holdsFastener(*list);
    }
    offer.anything = offer.anything || !activity.outputs.empty();
    VXMFabFlowNode* const node = nodeOf(generator, activity);
    const auto add = [&](const ObjectList& list, VXMFabMBOMNode::AssignmentType type) {
        if (!list.empty()) {
            (!node || generator.UseProducts(node, type) == 1 ? offer.brings : offer.shutInStation) = true;
        }
    };
    add(activity.firstAssigned, VXMFabMBOMNode::AT_FirstAssign);
    add(activity.outputs, VXMFabMBOMNode::AT_Create);
}

Offer offerOf(VXMBomGenerator& generator, const std::vector<const ModelObject*>& steps) {
    Offer offer;
    for (const ModelObject* step : steps) {
        if (step->sort() == Sort::Activity) {
            addOffer(static_cast<const Activity&>(*step), generator, offer);
        } else if (const Behaviour* const behaviour = static_cast<const Resource*>(step)->behaviour()) {
            const bool lists = !behaviour->assigned.empty() || !behaviour->outputs.empty();
            offer.anything = offer.anything || lists;
            offer.brings = offer.brings || lists;
        }
    }
    return offer;
}

const char* reasonFor(const Offer& offer) {
    if (!offer.anything) {
        return "its steps list nothing";
    }
    if (offer.brings) {
        return "whatever comes in is taken out again";
    }
    if (offer.shutInStation) {
        return "inside a station only what loading steps assign first counts";
    }
    return offer.fasteners ? "its steps bring in no product, and no fastener that they list is shown"
                           : "its steps only work on items or remove them, and none brings one in";
}

/// The first few by name, and how many more there are.
std::string namesOf(const std::vector<const ModelObject*>& steps) {
    std::string names;
    for (std::size_t i = 0; i < std::min(steps.size(), kNamed); ++i) {
        names += (i == 0 ? "" : ", ") + inQuotes(steps[i]->name());
    }
    return steps.size() <= kNamed ? names : names + " and " + std::to_string(steps.size() - kNamed) + " more";
}

/// Steps by whether links lead from them to the end of the flow. The root always counts as reached.
struct Ways {
    std::vector<const ModelObject*> reached;
    std::vector<const ModelObject*> lost;
};

Ways waysOf(VXMBomGenerator& generator, const std::vector<const ModelObject*>& steps) {
    const auto objects = objectsOnWayToEnd(generator, *steps.front());
    Ways ways{{steps.front()}, {}};
    std::partition_copy(steps.begin() + 1, steps.end(), std::back_inserter(ways.reached), std::back_inserter(ways.lost),
                        [&](const ModelObject* step) { return objects.contains(step); });
    return ways;
}

/// How many steps are lost, what comes of that, and which they are.
std::string lossText(const Ways& ways, const char* effect) {
    const std::size_t below = ways.reached.size() + ways.lost.size() - 1;
    return std::to_string(ways.lost.size()) + " of " + std::to_string(below) + " steps " +
           (ways.lost.size() == 1 ? "lies" : "lie") + " on no path of links to the end of the plan" + effect + ": " +
           namesOf(ways.lost);
}

bool showsFastener(VXMBomGenerator& generator, const ModelObject& step) {
    const VXMFabFlowNode* const node = nodeOf(generator, step);
    return node && node->GetNumberOfFasteners() > 0;
}

/// Lost steps are to blame only where the bill would have something from them. Nothing when no step lists anything,
/// none being lost.
std::optional<std::string> whyEmpty(VXMBomGenerator& generator, const Ways& ways) {
    const std::string empty = "the bill is empty: ";
    const Offer missed = offerOf(generator, ways.lost);
    if (missed.brings || std::any_of(ways.lost.begin(), ways.lost.end(),
                                     [&](const ModelObject* step) { return showsFastener(generator, *step); })) {
        return empty + lossText(ways, "");
    }
    const Offer offered = offerOf(generator, ways.reached);
    const char* const reason = reasonFor(offered.anything ? offered : missed);
    if (!ways.lost.empty()) {
        return empty + reason + "; " + lossText(ways, "");
    }
    return offered.anything ? std::optional(empty + reason) : std::nullopt;
}

} // namespace

std::vector<const ModelObject*> stepsFrom(const ModelObject& root) {
    std::vector<const ModelObject*> steps;
    auto& top = static_cast<FlowObject&>(const_cast<ModelObject&>(root)); // walked, not changed
    walkContents(top, [&](const FlowObject& object, const ModelObject*) {
        if (isStep(object)) {
            steps.push_back(&object);
        }
    });
    return steps;
}

std::unordered_set<const QORBaseUnknown*> objectsOnWayToEnd(VXMBomGenerator& generator, const ModelObject& root) {
    std::unordered_set<const QORBaseUnknown*> objects;
    std::unordered_set<const VXMFabFlowNode*> met;
    std::vector<VXMFabFlowNode*> open;
    const auto visit = [&](VXMFabFlowNode* node) {
        if (node && met.insert(node).second) {
            objects.insert(node->GetActivity().Impl());
            open.push_back(node);
        }
    };
    visit(generator.GetLastNodeInFlow(nodeOf(generator, root)));
    while (!open.empty()) {
        VXMFabFlowNode* const node = open.back();
        open.pop_back();
        for (int i = 1; i <= node->GetNumberOfPredecessors(); ++i) {
            visit(node->GetPredecessor(i));
        }
    }
    return objects;
}

std::optional<std::string> remarkOn(VXMBomGenerator& generator, const std::vector<const ModelObject*>& steps,
                                    bool billIsEmpty) {
    const Ways ways = waysOf(generator, steps);
    if (billIsEmpty) {
        return whyEmpty(generator, ways);
    }
    if (ways.lost.empty()) {
        return std::nullopt;
    }
    return lossText(ways, ways.lost.size() == 1 ? " and adds nothing to the bill" : " and add nothing to the bill");
}

} // namespace planner
