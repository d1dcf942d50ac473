// What the objects of a plan answer, by kind; absent lists against empty ones; identity.

#include "PlanText.h"

#include "QORPlatform/framework/QORModelIdentificator.h"
#include "VXMBomInfrastructure/model/QORISPPProductIO.h"

#include <gtest/gtest.h>

using namespace plantext;
using planner::ModelObject;

namespace {

/// A plan with an object of every kind; its ids say what they are.
constexpr const char* kWorld = R"({"version": 1,
  "items": [
    {"id": "product", "kind": "product"},
    {"id": "parent", "kind": "product", "name": "Parent", "children": ["product", "both", "product"]},
    {"id": "assembly", "kind": "assembly"},
    {"id": "both", "kind": "assembly", "children": [], "holds": ["fastener", "both"]},
    {"id": "fastener", "kind": "fastener", "type": "Stud", "assigned": false},
    {"id": "plain", "kind": "fastener"},
    {"id": "item", "kind": "item", "shape": {"sphere": [1]}}],
  "process": {"id": "root", "name": "Root", "children": [
    {"id": "activity", "first_assigned": ["item", "product"], "assigned": ["item"], "removed": [],
     "items": ["plain", "product"], "outputs": ["parent", "parent"]},
    {"id": "loading", "kind": "loading"},
    {"id": "station", "kind": "station", "type": "Cell", "children": [{"id": "grouping", "kind": "grouping"}]},
    {"id": "logical", "kind": "logical", "children": []}]},
  "resources": [
    {"id": "resource", "name": "Robot", "children": ["parent", {"id": "nested"}],
     "behaviour": {"id": "behaviour", "activities": [{"id": "inner"}], "assigned": ["plain"]}},
    {"id": "nameless", "behaviour": {}}],
  "links": [["activity", "loading"], ["activity", "logical"], ["activity", "nested"], ["behaviour", "activity"],
            ["activity", "loading"]]})";

/// The ids of a list; "null" for none.
std::string ids(const QORListValQORBaseUnknown_var* list) {
    if (!list) {
        return "null";
    }
    std::string text = "[";
    for (const QORBaseUnknown_var& handle : *list) {
        text += (text.size() > 1 ? " " : "") + ModelObject::behind(handle)->id();
    }
    return text + "]";
}
std::string ids(const QORListValQORBaseUnknown_var& list) {
    return ids(&list);
}
std::string adopted(QORListValQORBaseUnknown_var* list) {
    return ids(std::unique_ptr<QORListValQORBaseUnknown_var>(list).get());
}

std::string asText(const QORUnicodeString& text) {
    return std::string(text);
}

// What an object answers to each interface.

std::string answer(QORIProduct& product) {
    QORUnicodeString instance;
    EXPECT_EQ(product.GetInstanceName(instance), QOR_OK);
    EXPECT_EQ(instance, product.GetProductName());
    return asText(instance) + " " + adopted(product.GetChildren("QORIProduct"));
}
std::string answer(QORISPPItem& item) {
    return asText(item.GetName());
}
std::string answer(VXMIMfgAssembly& assembly) {
    QORListValQORBaseUnknown_var* held = nullptr;
    const QORStatus status = assembly.GetAssignedProducts(held);
    EXPECT_EQ(status >= 0, held != nullptr);
    return asText(assembly.GetName()) + " " + adopted(held);
}
std::string answer(VXMIBIWFastener& fastener) {
    return asText(fastener.GetProcessType()) + " " + std::to_string(fastener.IsAssigned());
}
std::string answer(QORISPPActivity&) {
    return "";
}
std::string answer(QORISPPAbstractActivity& activity) {
    QORUnicodeString type;
    activity.GetType(type);
    const QORISPPAbstractActivity_var parent = activity.GetParent();
    return asText(activity.GetName()) + " " + asText(type) + (parent ? " in " + asText(parent->GetName()) : "");
}
std::string answer(QORISpecObject& typed) {
    std::string types;
    for (const char* type :
         {"PhysicalActivity", "BIWActivityLoading", "BIWActivityStation", "BIWActivityGrouping", "Cell", "Logical"}) {
        types += typed.IsOfType(type) == 1 ? (types.empty() ? "" : " ") + std::string(type) : "";
    }
    return types;
}
std::string answer(QORISPPChildManagement& steps) {
    return adopted(steps.GetChildren("")) + adopted(steps.GetChildren("BIWActivityStation"));
}
std::string answer(QORISPPFlowMgt& flow) {
    std::string text = ids(flow.GetPredecessors("Activity")) + ids(flow.GetSuccessors("Activity"));
    for (const QORBaseUnknown_var& record : flow.GetProductOutputs(nullptr)) {
        text += " out " + ModelObject::behind(QORISPPProductIO_var(record)->GetProduct())->id();
    }
    return text;
}
std::string answer(QORISPPItemMgt& items) {
    std::string text;
    for (const int relation : {2, 1, 4, 3, 0}) {
        text += adopted(items.GetItems("Item", relation));
    }
    return text;
}
std::string answer(VXMIResourceBehaviorManager& manager) {
    VXMIResourceBehavior_var behaviour;
    const QORStatus status = manager.GetBehavior(behaviour);
    EXPECT_EQ(status >= 0, static_cast<bool>(behaviour));
    return behaviour ? "behaviour \"" + ModelObject::behind(behaviour)->id() + '"' : "none";
}
std::string answer(VXMIResourceBehavior& behaviour) {
    return adopted(behaviour.GetActivities(nullptr));
}
std::string answer(VXMIResourceFlowMgmt& flow) {
    return adopted(flow.GetPredecessors()) + adopted(flow.GetSuccessors());
}
std::string answer(VXMIResourceItemMgmt& items) {
    return adopted(items.GetAssignedItems()) + adopted(items.GetOutputItems());
}

/// The answers of an object, each with what it is called; just those of the interfaces that the object has.
std::string answersOf(ModelObject& object) {
    std::string text;
    const auto add = [&](const char* called, const auto& handle) {
        if (handle) {
            EXPECT_EQ(handle.Impl(), &object) << called;
            const std::string said = answer(*handle.Get());
            text += (text.empty() ? "" : "; ") + std::string(called) + (said.empty() ? "" : " " + said);
        }
    };
    add("product", QORIProduct_var(&object));
    add("item", QORISPPItem_var(&object));
    add("assembly", VXMIMfgAssembly_var(&object));
    add("fastener", VXMIBIWFastener_var(&object));
    add("activity", QORISPPActivity_var(&object));
    add("step", QORISPPAbstractActivity_var(&object));
    add("is", QORISpecObject_var(&object));
    add("children", QORISPPChildManagement_var(&object));
    add("flow", QORISPPFlowMgt_var(&object));
    add("items", QORISPPItemMgt_var(&object));
    add("does", VXMIResourceBehaviorManager_var(&object));
    add("acts", VXMIResourceBehavior_var(&object));
    add("links", VXMIResourceFlowMgmt_var(&object));
    add("takes", VXMIResourceItemMgmt_var(&object));
    return text;
}

TEST(Model, AnswersByKind) {
    const auto plan = read(kWorld);
    const std::pair<const char*, const char*> cases[] = {
        {"product", "product product null; item product"},
        {"parent", "product Parent [product both product]; item Parent"},
        {"assembly", "item assembly; assembly assembly null"},
        {"both", "product both []; item both; assembly both [fastener both]"},
        {"fastener", "item fastener; fastener Stud 0"},
        {"plain", "item plain; fastener  1"},
        {"item", "item item"},
        {"root", "activity; step Root PhysicalActivity; is PhysicalActivity; children [activity loading station "
                 "logical][station]; flow [][]; items nullnullnullnull[]"},
        {"activity",
         "activity; step activity PhysicalActivity in Root; is PhysicalActivity; children nullnull; flow [][loading "
         "logical loading] out parent out parent; items [item product][item][]null[item product plain]"},
        {"loading", "activity; step loading BIWActivityLoading in Root; is PhysicalActivity BIWActivityLoading; "
                    "children nullnull; flow [activity activity][]; items nullnullnullnull[]"},
        {"station", "activity; step station Cell in Root; is PhysicalActivity BIWActivityStation; children "
                    "[grouping][]; flow [][]; items nullnullnullnull[]"},
        {"grouping", "activity; step grouping BIWActivityGrouping in station; is PhysicalActivity BIWActivityGrouping; "
                     "children nullnull; flow [][]; items nullnullnullnull[]"},
        {"logical", "step logical Logical in Root; is; children [][]; flow [activity][]; items nullnullnullnull[]"},
        {"inner", "activity; step inner PhysicalActivity; is PhysicalActivity; children nullnull; flow [][]; items "
                  "nullnullnullnull[]"},
        {"resource", R"(product Robot [parent nested]; is; does behaviour "behaviour"; links nullnull)"},
        {"nested", "product nested null; is; does none; links [activity][]"},
        {"nameless", R"(product nameless null; is; does behaviour ""; links nullnull)"},
        {"behaviour", "acts [inner]; links [][activity]; takes [plain]null"}};
    for (const auto& [id, answers] : cases) {
        EXPECT_EQ(answersOf(*plan->find(id)), answers) << id;
    }
    ModelObject& nameless = *static_cast<planner::Resource*>(plan->find("nameless"))->behaviour();
    EXPECT_EQ(answersOf(nameless), "acts null; takes nullnull") << "it can't be linked";
    const QORIProduct_var parent(plan->find("parent"));
    EXPECT_EQ(adopted(parent->GetChildren("VXMIMfgAssembly")), "[both]");
    const QORISPPFlowMgt_var activity(plan->find("activity"));
    EXPECT_EQ(ids(activity->GetSuccessors("BIWActivityLoading")), "[loading loading]");
    EXPECT_EQ(activity->GetProductOutputs(QORISPPItem_var(plan->find("item"))).Size(), 0);
}

TEST(Numbers, GoThroughItemsProcessAndResourcesWhateverTheOrderOfKeys) {
    const auto plan = read(R"({"version": 1,
      "resources": [{"id": "9", "children": [{"id": "13"}, {"id": "14"}],
                     "behaviour": {"id": "10", "activities": [{"id": "11", "children": [{"id": "12"}]}]}},
                    {"id": "15"}],
      "process": {"id": "3", "children": [{"id": "4", "children": [{"id": "5"}, {"id": "6"}]}, {"id": "7"}, {"id": "8"}]},
      "items": [{"id": "1", "kind": "item"}, {"id": "2", "kind": "product"}]})");
    for (int number = 1; number <= 15; ++number) {
        ModelObject* const object = plan->find(std::to_string(number));
        EXPECT_EQ(QORModelIdentificator(object).GetIntId(), number);
    }
}

TEST(DefaultProcess, IsNamedAfterThePlanAndTakesANumber) {
    const auto plan = read(R"({"version": 1, "plan": "T", "items": [{"id": "i", "kind": "item"}]})");
    EXPECT_EQ(plan->process()->name(), "T");
    EXPECT_EQ(QORModelIdentificator(plan->process()).GetIntId(), 2);
    EXPECT_EQ(read(R"({"version": 1})")->process()->name(), "title");
}

TEST(PlanEnd, LeavesAHandleGoodAndItsObjectAlone) {
    auto plan = read(kWorld);
    const QORISPPChildManagement_var root(plan->find("root"));
    const QORIProduct_var parent(plan->find("parent"));
    plan.reset();
    EXPECT_EQ(adopted(root->GetChildren("")), "null");
    EXPECT_EQ(adopted(parent->GetChildren("QORIProduct")), "null");
}

} // namespace
