// Each edit: what views are told, what stands in the file afterwards, and that undo and redo are exact.

#include "planner/edit/EditSession.h"

#include <gtest/gtest.h>

using editing::kWorld;
using editing::Session;
using planner::Relation;

namespace {

using E = planner::PlanEditor;
using S = Session;

struct EditCase {
    const char* undoText;
    void (*edit)(E& e, S& s);
    const char* told;       // kinds after the edit and after redo
    const char* toldUndone; // kinds after undo
    const char* stands;     // what the file holds afterwards, its line ends and indentation left out
    const char* gone;       // what it no longer holds
};

planner::NewActivity named(const char* id, const char* name) {
    return {id, name};
}
const planner::NewActivity kStation{"new", {}, planner::ActivityKind::Station, "T"};
const planner::NewItem kAssembly{"new", planner::ItemKind::Assembly};
const planner::Shape kSphere{planner::Shape::Form::Sphere, {2}, "", {}, ""};

const EditCase kCases[] = {
    {R"(Add "New")", [](E& e, S& s) { e.addActivity(s.activity("line"), named("new", "New"), 1); }, "3", "17",
     R"("new", "name": "New"},{"id": "join")", nullptr},
    {R"(Add "new")", [](E& e, S& s) { e.addActivity(s.activity("hold"), kStation); }, "3", "17",
     R"({"id": "hold", "children": [{"id": "new", "kind": "station", "type": "T"}]})", R"({"id": "hold"})"},
    {R"(Add "new")", [](E& e, S& s) { e.addActivity(s.flow("moves"), {"new"}, 0); }, "3", "17",
     R"("activities": [{"id": "new"},)", nullptr},
    {R"(Remove "Join")", [](E& e, S& s) { e.removeActivity(s.activity("join")); }, "17 27", "3 18",
     R"("links": [["moves", "load"],)", R"("press")"},
    {"Remove both",
     [](E& e, S& s) {
         e.group("Remove both", [&] {
             e.removeActivity(s.activity("pick"));
             e.removeActivity(s.activity("drop"));
         });
     },
     "17", "3", R"("activities": [])", R"("pick")"},
    {R"(Move "load")", [](E& e, S& s) { e.moveActivity(s.activity("load"), s.activity("check")); }, "17", "17",
     R"({"id": "check", "children": [{"id": "load")", nullptr},
    {R"(Move "load")", [](E& e, S& s) { e.moveActivity(s.activity("load"), s.activity("line"), 2); }, "17", "17",
     R"({"id": "check", "children": []},{"id": "load")", nullptr},
    {R"(Move "press")", [](E& e, S& s) { e.moveActivity(s.activity("press"), s.flow("moves"), 1); }, "17", "17",
     R"({"id": "pick"},{"id": "press", "assigned": ["part"]},)", nullptr},
    {R"(Rename "load")", [](E& e, S& s) { e.rename(s.activity("load"), "Load \"it\""); }, "1", "1",
     R"("name": "Load \"it\"")", nullptr},
    {R"(Rename "Panel")", [](E& e, S& s) { e.rename(s.item("panel"), ""); }, "39", "39", R"("name": "")",
     R"("name": "Panel")"},
    {R"(Link "moves" to "table")", [](E& e, S& s) { e.addLink(s.flow("moves"), s.flow("table")); }, "18", "27",
     R"(["load", "check"],["moves", "table"]])", nullptr},
    {R"(Remove the link from "load" to "Join")", [](E& e, S& s) { e.removeLink(s.flow("load"), s.flow("join")); }, "27",
     "18", R"("links": [["hold", "press"],["join", "check"],["load", "join"],)", nullptr},
    {R"(Put "Frame" into "load")",
     [](E& e, S& s) { e.putItem(s.activity("load"), Relation::FirstAssigned, s.item("frame"), 1); }, "29", "29",
     R"("first_assigned": ["part", "frame", "jig", "part"])", nullptr},
    {R"(Put "part" into "hold")", [](E& e, S& s) { e.putItem(s.activity("hold"), Relation::Removed, s.item("part")); },
     "29", "29", R"({"id": "hold", "removed": ["part"]})", nullptr},
    {R"(Take "weld" out of "load")", [](E& e, S& s) { e.takeItem(s.activity("load"), Relation::Items, 0); }, "29", "29",
     R"("items": [])", R"("items": ["weld"])"},
    {R"(Put "Frame" into "moves")",
     [](E& e, S& s) { e.putItem(s.object("moves"), Relation::Outputs, s.item("frame")); }, "29", "29",
     R"("assigned": ["part"], "outputs": ["frame"])", nullptr},
    {R"(Put "part" into "table")",
     [](E& e, S& s) { e.putItem(s.resource("table"), Relation::Children, s.item("part")); }, "29", "29",
     R"({"id": "table", "children": ["part"]})", nullptr},
    {R"(Put "Panel" into "Panel")",
     [](E& e, S& s) { e.putItem(s.item("panel"), Relation::Children, s.item("panel"), 0); }, "39", "39",
     R"("children": ["panel", "part", "part"])", nullptr},
    {R"(Take "part" out of "Frame")", [](E& e, S& s) { e.takeItem(s.item("frame"), Relation::Holds, 0); }, "39", "39",
     R"("holds": ["panel", "part"])", nullptr},
    {R"(Begin a list of "hold")", [](E& e, S& s) { e.makeList(s.activity("hold"), Relation::Items); }, "29", "29",
     R"({"id": "hold", "items": []})", nullptr},
    {R"(Drop a list of "load")", [](E& e, S& s) { e.dropList(s.activity("load"), Relation::FirstAssigned); }, "29",
     "29", R"({"id": "load", "kind": "loading", "items": ["weld"]})", nullptr},
    {R"(Add "new")", [](E& e, S&) { e.addResource(nullptr, {"new"}, 0); }, "3", "17", R"("resources": [{"id": "new"},)",
     nullptr},
    {R"(Add "new")", [](E& e, S& s) { e.addResource(&s.resource("robot"), {"new"}, 1); }, "3", "17",
     R"("panel",{"id": "new"},)", nullptr},
    {R"(Remove "robot")", [](E& e, S& s) { e.removeResource(s.resource("robot")); }, "17 27 39", "3 18 39",
     R"(["load", "join"],["load", "check"])", R"("moves")"},
    {R"(Remove "gripper")", [](E& e, S& s) { e.removeResource(s.resource("gripper")); }, "17 27 39", "3 18 39",
     R"("panel","cell"])", R"("gripper")"},
    {R"(Take "gripper" out of "kit")", [](E& e, S& s) { e.takeItem(s.item("kit"), Relation::Children, 0); }, "39", "39",
     R"("children": ["part", "gripper"])", nullptr},
    {R"(Put "table" into "Panel")",
     [](E& e, S& s) { e.putItem(s.item("panel"), Relation::Children, s.resource("table"), 1); }, "39", "39",
     R"("children": ["part", "table", "part"])", nullptr},
    {R"(Drop a list of "kit")", [](E& e, S& s) { e.dropList(s.item("kit"), Relation::Children); }, "39", "39",
     R"({"id": "kit", "kind": "product"})", nullptr},
    {R"(Rename "gripper")", [](E& e, S& s) { e.rename(s.resource("gripper"), "G"); }, "39", "39", R"("name": "G")",
     nullptr},
    {R"(Rename "table")", [](E& e, S& s) { e.rename(s.resource("table"), "T"); }, "1", "1", R"("name": "T")", nullptr},
    {"Rename below a part of a product",
     [](E& e, S& s) {
         e.group("Rename below a part of a product", [&] {
             e.addResource(&s.resource("gripper"), {"finger"});
             e.rename(s.resource("finger"), "F");
         });
     },
     "3 39", "17 39", R"("children": [{"id": "finger", "name": "F"}])", nullptr},
    {R"(Rename "Join")", [](E& e, S& s) { e.rename(s.activity("join"), std::nullopt); }, "1", "1",
     R"({"id": "join", "first)", R"("Join")"},
    {R"(Change the kind of "hold")", [](E& e, S& s) { e.setKind(s.activity("hold"), planner::ActivityKind::Logical); },
     "29", "29", R"({"id": "hold", "kind": "logical"})", nullptr},
    {R"(Change the kind of "load")", [](E& e, S& s) { e.setKind(s.activity("load"), {}); }, "29", "29",
     R"({"id": "load", "first)", nullptr},
    {R"(Change the type of "hold")", [](E& e, S& s) { e.setType(s.activity("hold"), "T"); }, "1", "1",
     R"({"id": "hold", "type": "T"})", nullptr},
    {"Change the title", [](E& e, S&) { e.setTitle("T"); }, "1", "1", R"({"plan": "T","version")", nullptr},
    {"Change the notes of the plan", [](E& e, S&) { e.setPlanNotes("[1.0 ,2]"); }, "1", "1", R"("notes": [1.0, 2],)",
     nullptr},
    {R"(Change the notes of "part")", [](E& e, S& s) { e.setNotes(s.item("part"), R"({"a":"b"})"); }, "1", "1",
     R"({"id": "part", "notes": {"a": "b"}, "kind")", nullptr},
    {R"(Change the id of "part")", [](E& e, S& s) { e.changeId(s.item("part"), "p"); }, "39", "39",
     R"("holds": ["p", "panel", "p"])", R"("part")"},
    {R"(Change the id of "moves")", [](E& e, S& s) { e.changeId(s.object("moves"), "m"); }, "29", "29",
     R"(["m", "load"])", R"("moves")"},
    {R"(Begin the activities of "hold")", [](E& e, S& s) { e.makeActivities(s.flow("hold")); }, "29", "29",
     R"({"id": "hold", "children": []})", nullptr},
    {R"(Drop the activities of "check")", [](E& e, S& s) { e.dropActivities(s.flow("check")); }, "29", "29",
     R"({"id": "check"})", nullptr},
    {R"(Move "part" in "kit")", [](E& e, S& s) { e.moveEntry(s.item("kit"), Relation::Children, 1, 0); }, "39", "39",
     R"("children": ["part", "gripper", "gripper"])", nullptr},
    {R"(Move "gripper" in "robot")", [](E& e, S& s) { e.moveEntry(s.resource("robot"), Relation::Children, 1, 2); },
     "29", "29", R"("panel","cell",{"id": "gripper"}])", nullptr},
    {R"(Move "jig")", [](E& e, S& s) { e.moveItem(s.item("jig"), 0); }, "39", "39", R"("items": [{"id": "jig")",
     nullptr},
    {R"(Link "hold" to "load")", [](E& e, S& s) { e.addLink(s.flow("hold"), s.flow("load"), 1); }, "18", "27",
     R"("links": [["load", "join"],["hold", "load"],["hold", "press"])", nullptr},
    {R"(Move the link from "load" to "check")", [](E& e, S& s) { e.moveLink(s.flow("load"), s.flow("check"), 0); },
     "18 27", "18 27", R"("links": [["load", "check"],["load", "join"],["hold", "press"])", nullptr},
    {R"(Move "robot")", [](E& e, S& s) { e.moveResource(s.resource("robot"), &s.resource("table")); }, "17", "17",
     R"({"id": "table", "children": [{"id": "robot")", nullptr},
    {R"(Move "gripper")", [](E& e, S& s) { e.moveResource(s.resource("gripper"), nullptr, 0); }, "17", "17",
     R"("resources": [{"id": "gripper"},)", nullptr},
    {R"(Add a behaviour to "table")", [](E& e, S& s) { e.addBehaviour(s.resource("table"), "acts"); }, "3", "17",
     R"({"id": "table", "behaviour": {"id": "acts"}})", nullptr},
    {R"(Add a behaviour to "table")", [](E& e, S& s) { e.addBehaviour(s.resource("table"), ""); }, "3", "17",
     R"({"id": "table", "behaviour": {}})", nullptr},
    {R"(Remove the behaviour of "robot")", [](E& e, S& s) { e.removeBehaviour(s.resource("robot")); }, "17 27", "3 18",
     R"({"id": "robot", "children": [)", R"("moves")"},
    {R"(Add "new")", [](E& e, S&) { e.addItem(kAssembly, 2); }, "39", "39",
     R"({"id": "new", "kind": "assembly"},{"id": "frame")", nullptr},
    {R"(Remove "part")", [](E& e, S& s) { e.removeItem(s.item("part")); }, "29 39", "29 39",
     R"({"id": "load", "kind": "loading", "first_assigned": ["jig"], "items": ["weld"]})", R"("part")"},
    {R"(Shape "part")", [](E& e, S& s) { e.setShape(s.item("part"), kSphere); }, "39", "39",
     R"("shape": {"sphere": [2]})", nullptr},
    {R"(Shape "jig")", [](E& e, S& s) { e.setShape(s.item("jig"), std::nullopt); }, "39", "39",
     R"({"id": "jig", "kind": "item", "place": [4, 5, 6]},)", nullptr},
    {R"(Place "jig")", [](E& e, S& s) { e.setPlace(s.item("jig"), planner::Place{std::vector<double>(6, 1)}); }, "39",
     "39", R"("place": [1, 1, 1, 1, 1, 1])", nullptr},
    {R"(Change the type of "weld")", [](E& e, S& s) { e.setFastenerType(s.fastener("weld"), "Rivet"); }, "39", "39",
     R"("type": "Rivet")", "Spot"},
    {R"(Change the assignment of "weld")", [](E& e, S& s) { e.setAssigned(s.fastener("weld"), false); }, "39", "39",
     R"("assigned": false)", nullptr},
    {"Swap",
     [](E& e, S& s) {
         e.group("Swap", [&] {
             e.removeLink(s.flow("hold"), s.flow("press"));
             e.addLink(s.flow("press"), s.flow("hold"));
             e.group("inner", [&] { e.rename(s.activity("hold"), "H"); });
             e.addItem({"bolt"});
             e.putItem(s.activity("hold"), Relation::Items, s.item("bolt"));
         });
     },
     "1 18 27 29 39", "1 18 27 29 39", R"(["press", "hold"])", R"(["hold", "press"])"},
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

TEST(Edits, AreToldAndUndoneExactly) {
    for (const EditCase& test : kCases) {
        SCOPED_TRACE(std::string(test.undoText) + " for " + test.stands);
        Session session(kWorld);
        const std::string first = session.text();
        test.edit(session.editor(), session);
        const std::string after = session.text();
        EXPECT_EQ(session.listener().take(), test.told);
        EXPECT_NE(flat(after).find(test.stands), std::string::npos) << after;
        EXPECT_FALSE(test.gone && flat(after).find(test.gone) != std::string::npos) << after;
        EXPECT_EQ(session.editor().undoText(), test.undoText);
        session.expectGoodFile();
        EXPECT_TRUE(session.editor().isModified());

        ASSERT_TRUE(session.editor().undo());
        EXPECT_EQ(session.listener().take(), test.toldUndone);
        EXPECT_EQ(session.text(), first);
        EXPECT_FALSE(session.editor().isModified());
        EXPECT_EQ(session.editor().undoText(), "");
        EXPECT_EQ(session.editor().redoText(), test.undoText);

        ASSERT_TRUE(session.editor().redo());
        EXPECT_EQ(session.listener().take(), test.told);
        EXPECT_EQ(session.text(), after);
    }
}

} // namespace
