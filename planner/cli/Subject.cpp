#include "planner/cli/Subject.h"

#include "planner/bill/BillRemarks.h"
#include "planner/cli/RunProgress.h"

#include "planner/file/JsonText.h"
#include "planner/file/PlanReader.h"
#include "planner/file/SourceText.h"
#include "planner/model/Contents.h"
#include "planner/model/FastenerSettings.h"

#include "VXMBomInfrastructure/nodes/VXMFastenerTypes.h"

#include <algorithm>
#include <cstdlib>

namespace planner {

ModelObject* findRoot(const Plan& plan, const std::optional<std::string>& root, const std::string& path) {
    if (!root) {
        return plan.process();
    }
    ModelObject* const object = plan.find(*root);
    const std::string asked = "--root names " + inQuotes(*root) + ", which is ";
    constexpr const char* kExpected = "; expected the id of an activity or a resource";
    if (!object) {
        complain(asked + "not in " + sourceName(path) + kExpected);
        return nullptr;
    }
    const bool isActivity = object->sort() == Sort::Activity;
    const bool isLogical = isActivity && !static_cast<const Activity*>(object)->isStep();
    if ((isActivity && !isLogical) || object->sort() == Sort::Resource) {
        return object;
    }
    complain(asked + (isLogical ? "a logical node" : sortText(object->sort())) + kExpected);
    return nullptr;
}

namespace {

/// Sets the thirteen switches of the fastener settings for this run.
void setFasteners(const Arguments& arguments) {
    const std::vector<std::string> shown = arguments.values("--fasteners");
    const auto shows = [&](const char* name) {
        return std::find(shown.begin(), shown.end(), name) != shown.end();
    };
    for (const VXMFastenerType& type : VXMFastenerTypes) {
        FastenerSettings::store().Set(type.setting, shows("all") || shows(type.name) ? 1 : 0);
    }
    FastenerSettings::store().Set(VXMAssignedFastenersOnlySetting, arguments.has("--unassigned-fasteners") ? 0 : 1);
}

/// A behaviour stands for its resource, whose step it is.
ModelObject* stepOf(ModelObject& object) {
    return object.sort() == Sort::Behaviour ? static_cast<FlowObject&>(object).container() : &object;
}

/// The ids of the first few, for a message.
std::string idsOf(const std::vector<ModelObject*>& objects) {
    constexpr std::size_t kNamed = 3;
    std::string ids;
    for (std::size_t i = 0; i < std::min(objects.size(), kNamed); ++i) {
        ids += (i == 0 ? "" : ", ") + inQuotes(objects[i]->id());
    }
    return objects.size() <= kNamed ? ids : ids + " and " + std::to_string(objects.size() - kNamed) + " more";
}

} // namespace

std::unique_ptr<Plan> loadPlan(const std::string& path, std::string* text) {
    RunProgress::phase("reading the plan");
    ReadResult result = readPlan(path, text);
    RunProgress::phase("computing");
    for (const std::string& error : result.errors) {
        complainPlain(error);
    }
    return std::move(result.plan);
}

ModelObject* findStep(const Plan& plan, const Arguments& arguments, const std::string& option) {
    const std::string text = arguments.text(option);
    ModelObject* const byId = plan.find(text);
    if (byId && byId->sort() != Sort::Item) {
        return stepOf(*byId);
    }
    std::vector<ModelObject*> named;
    walkPlan(const_cast<Plan&>(plan), [&](FlowObject& object, const ModelObject*) { // walked, not changed
        if (object.name() == text && object.sort() != Sort::Behaviour) {
            named.push_back(&object);
        }
    });
    if (named.size() == 1) {
        return named.front();
    }
    const std::string asked = option + " names " + inQuotes(text) + ", which is ";
    if (byId) {
        complain(asked + "an item; expected the id or the name of a step");
    } else if (named.empty()) {
        complain(asked + "not in " + sourceName(arguments.text("PLAN")) + "; expected the id or the name of a step");
    } else {
        complain(asked + "the name of several steps; expected one of their ids: " + idsOf(named));
    }
    return nullptr;
}

std::optional<std::string> remarkOnBill(const Plan& plan, const ModelObject& root, VXMBomGenerator& generator,
                                        bool billIsEmpty) {
    std::optional<std::string> remark = remarkOn(generator, stepsFrom(root), billIsEmpty);
    if (!remark && billIsEmpty && &root == plan.process() && !plan.resources.empty()) {
        remark = "the bill is empty: the process lists nothing; name a resource with --root, as " +
                 inQuotes(plan.resources.entries().front()->id());
    }
    return remark;
}

Subject openSubject(const Arguments& arguments, std::string* text) {
    if (arguments.knows("--fasteners")) {
        setFasteners(arguments);
    }
    if (arguments.knows("--legacy") && arguments.has("--legacy")) {
        ::setenv("FAB_BOM_OLD_ALGORITHM", "TRUE", 1);
    }
    const auto root = arguments.knows("--root") ? arguments.value("--root") : std::nullopt;
    Subject subject{loadPlan(arguments.text("PLAN"), text)};
    subject.root = subject.plan ? findRoot(*subject.plan, root, arguments.text("PLAN")) : nullptr;
    return subject;
}

} // namespace planner
