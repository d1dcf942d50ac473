// Each edit: what views are told, what stands in the file afterwards, and that undo and redo are exact.

#include "planner/edit/EditSession.h"

#include <gtest/gtest.h>

using editing::kWorld;
using editing::Session;
using planner::ActivityKind;
using planner::ItemKind;
using planner::Relation;

namespace {

struct EditCase {
    const char* name;
    void (*edit)(Session& s);
    const char* told;       // kinds after the edit and after redo
    const char* toldUndone; // kinds after undo
    const char* stands;     // what the file holds afterwards
    const char* gone;       // what it no longer holds
    const char* undoText;
};

const EditCase kCases[] = {
    {"AddsAnActivity",
     [](Session& s) {
         s.editor().addActivity(s.activity("line"), {"new", "New"}, 1);
     },
     "3", "17",
     R"("new", "name": "New"},
      {"id": "join")",
     nullptr, R"(Add "New")"},
    {"AddsAnActivityOfAKindAndType",
     [](Session& s) {
         s.editor().addActivity(s.activity("hold"), {"new", {}, ActivityKind::Station, "T"});
     },
     "3", "17",
     R"({"id": "hold", "children": [
          {"id": "new", "kind": "station", "type": "T"}]})",
     R"({"id": "hold"})", R"(Add "new")"},
    {"AddsAnActivityToABehaviour", [](Session& s) { s.editor().addActivity(s.flow("moves"), {"new"}, 0); }, "3", "17",
     R"("activities": [
          {"id": "new"},)",
     nullptr, R"(Add "new")"},
    {"RemovesAnActivityWithItsLinksAndAllBelow", [](Session& s) { s.editor().removeActivity(s.activity("join")); },
     "17 27", "3 18", R"("links": [
    ["moves", "load"],)",
     R"("press")", R"(Remove "Join")"},
    {"RemovesAnActivityOfABehaviour", [](Session& s) { s.editor().removeActivity(s.activity("pick")); }, "17", "3",
     R"("activities": [
          {"id": "drop"}])",
     R"("pick")", R"(Remove "pick")"},
    {"RemovesTheLastOfAList",
     [](Session& s) {
         s.editor().group("Remove both", [&] {
             s.editor().removeActivity(s.activity("pick"));
             s.editor().removeActivity(s.activity("drop"));
         });
     },
     "17", "3", R"("activities": [])", nullptr, "Remove both"},
    {"MovesAnActivityWithItsLinks",
     [](Session& s) { s.editor().moveActivity(s.activity("load"), s.activity("check")); }, "17", "17",
     R"({"id": "check", "children": [
          {"id": "load")",
     nullptr, R"(Move "load")"},
    {"MovesAnActivityAmongItsSiblings",
     [](Session& s) { s.editor().moveActivity(s.activity("load"), s.activity("line"), 2); }, "17", "17",
     R"({"id": "check", "children": []},
      {"id": "load")",
     nullptr, R"(Move "load")"},
    {"MovesAnActivityToABehaviour",
     [](Session& s) { s.editor().moveActivity(s.activity("press"), s.flow("moves"), 1); }, "17", "17",
     R"({"id": "pick"},
          {"id": "press", "assigned": ["part"]},)",
     nullptr, R"(Move "press")"},
    {"RenamesAnActivity", [](Session& s) { s.editor().rename(s.activity("load"), "Load \"it\""); }, "1", "1",
     R"("name": "Load \"it\"")", nullptr, R"(Rename "load")"},
    {"RenamesAnItem", [](Session& s) { s.editor().rename(s.item("panel"), ""); }, "39", "39", R"("name": "")",
     R"("name": "Panel")", R"(Rename "Panel")"},
    {"RenamesAResource", [](Session& s) { s.editor().rename(s.resource("table"), "T"); }, "1", "1",
     R"({"id": "table", "name": "T"})", nullptr, R"(Rename "table")"},
    {"AddsALink", [](Session& s) { s.editor().addLink(s.flow("moves"), s.flow("table")); }, "18", "27",
     R"(["load", "check"],
    ["moves", "table"]
  ])",
     nullptr, R"(Link "moves" to "table")"},
    {"RemovesTheFirstOfTwoEqualLinks", [](Session& s) { s.editor().removeLink(s.flow("load"), s.flow("join")); }, "27",
     "18", R"("links": [
    ["hold", "press"],
    ["join", "check"],
    ["load", "join"],)",
     nullptr, R"(Remove the link from "load" to "Join")"},
    {"PutsAnItemIntoARelation",
     [](Session& s) { s.editor().putItem(s.activity("load"), Relation::FirstAssigned, s.item("frame"), 1); }, "29",
     "29", R"("first_assigned": ["part", "frame", "jig", "part"])", nullptr, R"(Put "Frame" into "load")"},
    {"PutsTheFirstItemIntoAnAbsentRelation",
     [](Session& s) { s.editor().putItem(s.activity("hold"), Relation::Removed, s.item("part")); }, "29", "29",
     R"({"id": "hold", "removed": ["part"]})", nullptr, R"(Put "part" into "hold")"},
    {"TakesAnItemOut", [](Session& s) { s.editor().takeItem(s.activity("load"), Relation::Items, 0); }, "29", "29",
     R"("items": [])", R"("items": ["weld"])", R"(Take "weld" out of "load")"},
    {"PutsAnItemOut", [](Session& s) { s.editor().putItem(s.activity("load"), Relation::Outputs, s.item("frame")); },
     "29", "29", R"("items": ["weld"], "outputs": ["frame"])", nullptr, R"(Put "Frame" into "load")"},
    {"PutsAnOutputOfABehaviour",
     [](Session& s) { s.editor().putItem(s.object("moves"), Relation::Outputs, s.item("frame")); }, "29", "29",
     R"("assigned": ["part"], "outputs": ["frame"])", nullptr, R"(Put "Frame" into "moves")"},
    {"PutsAChildIntoAResource",
     [](Session& s) { s.editor().putItem(s.resource("table"), Relation::Children, s.item("part")); }, "29", "29",
     R"({"id": "table", "children": [
        "part"]})",
     nullptr, R"(Put "part" into "table")"},
    {"PutsAChildIntoAProduct",
     [](Session& s) { s.editor().putItem(s.item("panel"), Relation::Children, s.item("panel"), 0); }, "39", "39",
     R"("children": ["panel", "part", "part"])", nullptr, R"(Put "Panel" into "Panel")"},
    {"TakesOutWhatAnAssemblyHolds", [](Session& s) { s.editor().takeItem(s.item("frame"), Relation::Holds, 0); }, "39",
     "39", R"("holds": ["panel", "part"])", nullptr, R"(Take "part" out of "Frame")"},
    {"BeginsAnAbsentList", [](Session& s) { s.editor().makeList(s.activity("hold"), Relation::Items); }, "29", "29",
     R"({"id": "hold", "items": []})", nullptr, R"(Begin a list of "hold")"},
    {"DropsAList", [](Session& s) { s.editor().dropList(s.activity("load"), Relation::FirstAssigned); }, "29", "29",
     R"({"id": "load", "kind": "loading", "items": ["weld"]})", nullptr, R"(Drop a list of "load")"},
    {"AddsAResource",
     [](Session& s) {
         s.editor().addResource(nullptr, {"new", "New"}, 0);
     },
     "3", "17",
     R"("resources": [
    {"id": "new", "name": "New"},)",
     nullptr, R"(Add "New")"},
    {"AddsAResourceBelowAnother", [](Session& s) { s.editor().addResource(&s.resource("robot"), {"new"}, 1); }, "3",
     "17", R"("panel",
        {"id": "new"},)",
     nullptr, R"(Add "new")"},
    {"RemovesAResourceWithItsBehaviourAndLinks", [](Session& s) { s.editor().removeResource(s.resource("robot")); },
     "17 27", "3 18", R"(["load", "join"],
    ["load", "check"])",
     R"("moves")", R"(Remove "robot")"},
    {"RemovesANestedResource", [](Session& s) { s.editor().removeResource(s.resource("gripper")); }, "17 27", "3 18",
     R"("panel",
        "cell"])",
     R"("gripper")", R"(Remove "gripper")"},
    {"MovesAResourceIntoAnother",
     [](Session& s) { s.editor().moveResource(s.resource("robot"), &s.resource("table")); }, "17", "17",
     R"({"id": "table", "children": [
        {"id": "robot")",
     nullptr, R"(Move "robot")"},
    {"MovesAResourceToTheTop", [](Session& s) { s.editor().moveResource(s.resource("gripper"), nullptr, 0); }, "17",
     "17", R"("resources": [
    {"id": "gripper"},)",
     nullptr, R"(Move "gripper")"},
    {"AddsABehaviour", [](Session& s) { s.editor().addBehaviour(s.resource("table"), "acts"); }, "3", "17",
     R"({"id": "table", "behaviour": {"id": "acts"}})", nullptr, R"(Add a behaviour to "table")"},
    {"AddsABehaviourWithoutAnId", [](Session& s) { s.editor().addBehaviour(s.resource("table"), ""); }, "3", "17",
     R"({"id": "table", "behaviour": {}})", nullptr, R"(Add a behaviour to "table")"},
    {"RemovesABehaviourWithAllInIt", [](Session& s) { s.editor().removeBehaviour(s.resource("robot")); }, "17 27",
     "3 18", R"({"id": "robot", "children": [)", R"("moves")", R"(Remove the behaviour of "robot")"},
    {"AddsAnItem",
     [](Session& s) {
         s.editor().addItem({"new", ItemKind::Assembly, "New"}, 2);
     },
     "39", "39",
     R"({"id": "new", "name": "New", "kind": "assembly"},
    {"id": "frame")",
     nullptr, R"(Add "New")"},
    {"RemovesAnItemWithAllThatNamesIt", [](Session& s) { s.editor().removeItem(s.item("part")); }, "29 39", "29 39",
     R"({"id": "load", "kind": "loading", "first_assigned": ["jig"], "items": ["weld"]})", R"("part")",
     R"(Remove "part")"},
    {"RemovesAnItemThatNobodyLists",
     [](Session& s) {
         s.editor().takeItem(s.activity("load"), Relation::Items, 0);
         s.listener().take();
         s.editor().removeItem(s.item("weld"));
     },
     "39", "39", R"("items": [])", R"("weld")", R"(Remove "weld")"},
    {"GivesAnItemAShape",
     [](Session& s) {
         s.editor().setShape(s.item("part"), planner::Shape{planner::Shape::Form::Sphere, {2}, "", {}, ""});
     },
     "39", "39", R"("shape": {"sphere": [2]})", nullptr, R"(Shape "part")"},
    {"TakesAShapeAway", [](Session& s) { s.editor().setShape(s.item("jig"), std::nullopt); }, "39", "39",
     R"({"id": "jig", "kind": "item", "place": [4, 5, 6]})", nullptr, R"(Shape "jig")"},
    {"PlacesAnItem",
     [](Session& s) {
         s.editor().setPlace(s.item("jig"), planner::Place{{1, 2, 3, 4, 5, 6}});
     },
     "39", "39", R"("place": [1, 2, 3, 4, 5, 6])", nullptr, R"(Place "jig")"},
    {"ChangesTheTypeOfAFastener", [](Session& s) { s.editor().setFastenerType(s.fastener("weld"), "Rivet"); }, "39",
     "39", R"("type": "Rivet")", "Spot", R"(Change the type of "weld")"},
    {"ChangesTheAssignmentOfAFastener", [](Session& s) { s.editor().setAssigned(s.fastener("weld"), false); }, "39",
     "39", R"("assigned": false)", nullptr, R"(Change the assignment of "weld")"},
    {"MakesAGroupOneStep",
     [](Session& s) {
         s.editor().group("Swap", [&] {
             s.editor().removeLink(s.flow("hold"), s.flow("press"));
             s.editor().addLink(s.flow("press"), s.flow("hold"));
             s.editor().group("inner", [&] { s.editor().rename(s.activity("hold"), "H"); });
             s.editor().addItem({"bolt", ItemKind::Fastener});
             s.editor().putItem(s.activity("hold"), Relation::Items, s.item("bolt"));
         });
     },
     "1 18 27 29 39", "1 18 27 29 39", R"(["press", "hold"])", R"(["hold", "press"])", "Swap"},
};

/// The text without line ends and what indents the lines.
std::string flat(const std::string& text) {
    std::string result;
    bool indent = false;
    for (const char letter : text) {
        indent = letter == '\n' || (indent && letter == ' ');
        if (!indent) {
            result += letter;
        }
    }
    return result;
}

bool holds(const std::string& text, const char* part) {
    return flat(text).find(flat(part)) != std::string::npos;
}

void PrintTo(const EditCase& test, std::ostream* out) {
    *out << test.name;
}

class Edits : public testing::TestWithParam<EditCase> {};

TEST_P(Edits, AreToldAndUndoneExactly) {
    const EditCase& test = GetParam();
    Session session(kWorld);
    const std::string first = session.text();
    test.edit(session);
    const std::string after = session.text();
    EXPECT_EQ(session.listener().take(), test.told);
    EXPECT_TRUE(holds(after, test.stands)) << after;
    EXPECT_FALSE(test.gone && holds(after, test.gone)) << after;
    EXPECT_EQ(session.editor().undoText(), test.undoText);
    session.expectGoodFile();
    EXPECT_TRUE(session.editor().isModified());

    ASSERT_TRUE(session.editor().undo());
    EXPECT_EQ(session.listener().take(), test.toldUndone);
    const std::string undone = session.text();
    EXPECT_EQ(session.editor().redoText(), test.undoText);
    ASSERT_TRUE(session.editor().redo());
    EXPECT_EQ(session.listener().take(), test.told);
    EXPECT_EQ(session.text(), after);

    while (session.editor().undo()) {
    }
    EXPECT_EQ(session.text(), first);
    EXPECT_NE(undone, after);
    EXPECT_FALSE(session.editor().isModified());
    EXPECT_EQ(session.editor().undoText(), "");
}

INSTANTIATE_TEST_SUITE_P(Plan, Edits, testing::ValuesIn(kCases),
                         [](const auto& each) { return std::string(each.param.name); });

} // namespace
