// What the objects of a plan answer, by kind; absent lists against empty ones; identity.

#include "PlanText.h"

#include "planner/model/FastenerSettings.h"

#include "framework/QORComponents.h"
#include "framework/QORModelIdentificator.h"
#include "model/QORISPPProductIO.h"
#include "model/VXMIMVWMBOMViewerSettingAtt.h"

#include <gtest/gtest.h>

using namespace plantext;
using planner::ModelObject;
using planner::Plan;

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

const char* const kInterfaces[] = {"QORIProduct",          "QORISPPAbstractActivity",
                                   "QORISPPActivity",      "QORISPPChildManagement",
                                   "QORISPPFlowMgt",       "QORISPPItem",
                                   "QORISPPItemMgt",       "QORISpecObject",
                                   "VXMIBIWFastener",      "VXMIMfgAssembly",
                                   "VXMIResourceBehavior", "VXMIResourceBehaviorManager",
                                   "VXMIResourceFlowMgmt", "VXMIResourceItemMgmt",
                                   "QORISPPProductIO"};

std::string answersOf(QORBaseUnknown& object) {
    std::string names;
    for (const char* name : kInterfaces) {
        void* found = nullptr;
        if (object.QueryInterface(QORInterfaceID(name), &found) >= 0) {
            const auto handle = QORBaseUnknown_var::Adopt(static_cast<QORBaseUnknown*>(found));
            EXPECT_EQ(handle.Impl(), &object) << name;
            names += (names.empty() ? "" : " ") + std::string(name);
        }
    }
    return names;
}

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

class Model : public testing::Test {
protected:
    template <class Var>
    Var as(const char* id) {
        return Var(plan_->find(id));
    }

    std::unique_ptr<Plan> plan_ = read(kWorld);
};

TEST_F(Model, AnswersByKind) {
    constexpr const char* kLogical =
        "QORISPPAbstractActivity QORISPPChildManagement QORISPPFlowMgt QORISPPItemMgt QORISpecObject";
    constexpr const char* kActivity = "QORISPPAbstractActivity QORISPPActivity QORISPPChildManagement QORISPPFlowMgt "
                                      "QORISPPItemMgt QORISpecObject";
    constexpr const char* kResource = "QORIProduct QORISpecObject VXMIResourceBehaviorManager VXMIResourceFlowMgmt";
    const struct {
        const char* id;
        const char* answers;
    } cases[] = {{"product", "QORIProduct QORISPPItem"},
                 {"assembly", "QORISPPItem VXMIMfgAssembly"},
                 {"both", "QORIProduct QORISPPItem VXMIMfgAssembly"},
                 {"fastener", "QORISPPItem VXMIBIWFastener"},
                 {"item", "QORISPPItem"},
                 {"root", kActivity},
                 {"activity", kActivity},
                 {"loading", kActivity},
                 {"station", kActivity},
                 {"grouping", kActivity},
                 {"logical", kLogical},
                 {"inner", kActivity},
                 {"resource", kResource},
                 {"behaviour", "VXMIResourceBehavior VXMIResourceFlowMgmt VXMIResourceItemMgmt"}};
    for (const auto& each : cases) {
        EXPECT_EQ(answersOf(*plan_->find(each.id)), each.answers) << each.id;
    }
    VXMIResourceBehavior_var behaviour;
    EXPECT_EQ(as<VXMIResourceBehaviorManager_var>("nameless")->GetBehavior(behaviour), QOR_OK);
    EXPECT_EQ(answersOf(*behaviour.Impl()), "VXMIResourceBehavior VXMIResourceItemMgmt");
}

TEST_F(Model, IsOfTypesByKind) {
    const struct {
        const char* id;
        const char* types;
        const char* type;
    } cases[] = {{"activity", "PhysicalActivity ", "PhysicalActivity"},
                 {"loading", "PhysicalActivity BIWActivityLoading ", "BIWActivityLoading"},
                 {"station", "PhysicalActivity BIWActivityStation ", "Cell"},
                 {"grouping", "PhysicalActivity BIWActivityGrouping ", "BIWActivityGrouping"},
                 {"logical", "", "Logical"}};
    for (const auto& each : cases) {
        std::string types;
        for (const char* type : {"PhysicalActivity", "BIWActivityLoading", "BIWActivityStation", "BIWActivityGrouping",
                                 "Cell", "Logical"}) {
            types += as<QORISpecObject_var>(each.id)->IsOfType(type) == 1 ? type + std::string(" ") : "";
        }
        EXPECT_EQ(types, each.types) << each.id;
        QORUnicodeString type;
        as<QORISPPAbstractActivity_var>(each.id)->GetType(type);
        EXPECT_EQ(type, each.type) << each.id;
    }
    EXPECT_EQ(as<QORISpecObject_var>("resource")->IsOfType("PhysicalActivity"), 0);
}

TEST_F(Model, GivesItemsByRelation) {
    const auto items = as<QORISPPItemMgt_var>("activity");
    EXPECT_EQ(adopted(items->GetItems("Item", 2)), "[item product]");
    EXPECT_EQ(adopted(items->GetItems("Item", 1)), "[item]");
    EXPECT_EQ(adopted(items->GetItems("Item", 4)), "[]");
    EXPECT_EQ(adopted(items->GetItems("Item", 0)), "[item product plain]");
    EXPECT_EQ(adopted(items->GetItems("Item", 3)), "null");
    const auto without = as<QORISPPItemMgt_var>("loading");
    EXPECT_EQ(adopted(without->GetItems("Item", 2)), "null");
    EXPECT_EQ(adopted(without->GetItems("Item", 0)), "[]");
}

TEST_F(Model, GivesARecordForEachOutput) {
    const auto records = as<QORISPPFlowMgt_var>("activity")->GetProductOutputs(nullptr);
    ASSERT_EQ(records.Size(), 2);
    for (const QORBaseUnknown_var& record : records) {
        EXPECT_EQ(answersOf(*record.Impl()), "QORISPPProductIO");
        EXPECT_EQ(QORISPPProductIO_var(record)->GetProduct().Impl(), plan_->find("parent"));
    }
    EXPECT_EQ(as<QORISPPFlowMgt_var>("activity")->GetProductOutputs(as<QORISPPItem_var>("item")).Size(), 0);
    EXPECT_EQ(as<QORISPPFlowMgt_var>("root")->GetProductOutputs(nullptr).Size(), 0);
}

TEST_F(Model, GivesStructureWithAbsentAndEmptyListsApart) {
    EXPECT_EQ(adopted(as<QORIProduct_var>("parent")->GetChildren("QORIProduct")), "[product both product]");
    EXPECT_EQ(adopted(as<QORIProduct_var>("parent")->GetChildren("VXMIMfgAssembly")), "[both]");
    EXPECT_EQ(adopted(as<QORIProduct_var>("product")->GetChildren("QORIProduct")), "null");
    EXPECT_EQ(adopted(as<QORIProduct_var>("both")->GetChildren("QORIProduct")), "[]");
    EXPECT_EQ(adopted(as<QORIProduct_var>("resource")->GetChildren("QORIProduct")), "[parent nested]");
    EXPECT_EQ(adopted(as<QORIProduct_var>("nested")->GetChildren("QORIProduct")), "null");
    EXPECT_EQ(adopted(as<QORISPPChildManagement_var>("root")->GetChildren("")), "[activity loading station logical]");
    EXPECT_EQ(adopted(as<QORISPPChildManagement_var>("root")->GetChildren("BIWActivityStation")), "[station]");
    EXPECT_EQ(adopted(as<QORISPPChildManagement_var>("logical")->GetChildren("")), "[]");
    EXPECT_EQ(adopted(as<QORISPPChildManagement_var>("loading")->GetChildren("")), "null");
    QORListValQORBaseUnknown_var* held = nullptr;
    as<VXMIMfgAssembly_var>("both")->GetAssignedProducts(held);
    EXPECT_EQ(adopted(held), "[fastener both]");
    held = nullptr;
    as<VXMIMfgAssembly_var>("assembly")->GetAssignedProducts(held);
    EXPECT_EQ(adopted(held), "null");
}

TEST_F(Model, GivesNamesTypesAndParents) {
    QORUnicodeString name;
    as<QORIProduct_var>("resource")->GetInstanceName(name);
    EXPECT_EQ(name, "Robot");
    EXPECT_EQ(as<QORIProduct_var>("parent")->GetProductName(), "Parent");
    EXPECT_EQ(as<QORISPPItem_var>("item")->GetName(), "item");
    EXPECT_EQ(as<VXMIMfgAssembly_var>("both")->GetName(), "both");
    EXPECT_EQ(as<VXMIBIWFastener_var>("fastener")->GetProcessType(), "Stud");
    EXPECT_EQ(as<VXMIBIWFastener_var>("fastener")->IsAssigned(), 0);
    EXPECT_EQ(as<VXMIBIWFastener_var>("plain")->GetProcessType(), "");
    EXPECT_EQ(as<VXMIBIWFastener_var>("plain")->IsAssigned(), 1);
    EXPECT_EQ(as<QORISPPAbstractActivity_var>("grouping")->GetParent().Impl(), plan_->find("station"));
    EXPECT_FALSE(as<QORISPPAbstractActivity_var>("root")->GetParent());
    EXPECT_FALSE(as<QORISPPAbstractActivity_var>("inner")->GetParent());
}

TEST_F(Model, GivesBothViewsOfTheLinks) {
    const auto activity = as<QORISPPFlowMgt_var>("activity");
    EXPECT_EQ(ids(activity->GetSuccessors("Activity")), "[loading logical loading]");
    EXPECT_EQ(ids(activity->GetPredecessors("Activity")), "[]");
    EXPECT_EQ(ids(activity->GetSuccessors("BIWActivityLoading")), "[loading loading]");
    EXPECT_EQ(ids(as<QORISPPFlowMgt_var>("logical")->GetPredecessors("Activity")), "[activity]");
    EXPECT_EQ(adopted(as<VXMIResourceFlowMgmt_var>("behaviour")->GetSuccessors()), "[activity]");
    EXPECT_EQ(adopted(as<VXMIResourceFlowMgmt_var>("behaviour")->GetPredecessors()), "[]");
    EXPECT_EQ(adopted(as<VXMIResourceFlowMgmt_var>("nested")->GetPredecessors()), "[activity]");
    EXPECT_EQ(adopted(as<VXMIResourceFlowMgmt_var>("nested")->GetSuccessors()), "[]");
    EXPECT_EQ(adopted(as<VXMIResourceFlowMgmt_var>("resource")->GetSuccessors()), "null");
    EXPECT_EQ(adopted(as<VXMIResourceFlowMgmt_var>("resource")->GetPredecessors()), "null");
}

TEST_F(Model, GivesBehavioursWithAbsentListsAsNull) {
    VXMIResourceBehavior_var behaviour;
    EXPECT_EQ(as<VXMIResourceBehaviorManager_var>("resource")->GetBehavior(behaviour), QOR_OK);
    EXPECT_EQ(adopted(behaviour->GetActivities(nullptr)), "[inner]");
    EXPECT_EQ(adopted(VXMIResourceItemMgmt_var(behaviour)->GetAssignedItems()), "[plain]");
    EXPECT_EQ(adopted(VXMIResourceItemMgmt_var(behaviour)->GetOutputItems()), "null");
    EXPECT_EQ(as<VXMIResourceBehaviorManager_var>("nameless")->GetBehavior(behaviour), QOR_OK);
    EXPECT_EQ(adopted(behaviour->GetActivities(nullptr)), "null");
    VXMIResourceBehavior_var none;
    EXPECT_LT(as<VXMIResourceBehaviorManager_var>("nested")->GetBehavior(none), 0);
    EXPECT_FALSE(none);
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

VXMIMVWMBOMViewerSettingAtt_var makeSettings() {
    void* found = nullptr;
    QORInstantiateComponent("VXMMVWMBOMViewerSettingCtrl", IID_VXMIMVWMBOMViewerSettingAtt, &found);
    return VXMIMVWMBOMViewerSettingAtt_var::Adopt(static_cast<VXMIMVWMBOMViewerSettingAtt*>(found));
}

TEST(Settings, AnswerFromTheStoreAndLeaveAloneWhatWasNeverSet) {
    {
        const planner::FastenerSettings registration;
        const auto settings = makeSettings();
        ASSERT_TRUE(settings);
        int value = 7;
        EXPECT_LT(settings->GetShowStud(value), 0);
        EXPECT_EQ(value, 7);
        planner::FastenerSettings::store().Set("ShowStud", 2);
        planner::FastenerSettings::store().Set(planner::kAssignedOnlySetting, 0);
        EXPECT_EQ(settings->GetShowStud(value), QOR_OK);
        EXPECT_EQ(value, 2);
        EXPECT_EQ(settings->GetShowAssignedFastenersOnly(value), QOR_OK);
        EXPECT_EQ(value, 0);
        planner::FastenerSettings::store().ResetAll();
    }
    EXPECT_FALSE(makeSettings());
}

} // namespace
