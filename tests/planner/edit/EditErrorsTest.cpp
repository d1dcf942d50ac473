// What an edit refuses, and that nothing has changed then.

#include "planner/edit/EditSession.h"

#include <gtest/gtest.h>

#include <limits>

using editing::kWorld;
using editing::Session;
using planner::EditError;
using planner::Place;
using planner::PlanEditor;
using planner::Relation;
using planner::Shape;
using enum planner::EditError::Fault;

namespace {

using E = PlanEditor;
using S = Session;

struct ErrorCase {
    EditError::Fault fault;
    void (*edit)(E& e, S& s);
    const char* message;
};

/// An activity that was removed just now.
planner::Activity& removed(S& s) {
    planner::Activity& activity = s.activity("hold");
    s.editor().removeActivity(activity);
    return activity;
}

void setShape(S& s, Shape::Form form, std::vector<double> sizes) {
    s.editor().setShape(s.item("jig"), Shape{form, std::move(sizes), "", {}, ""});
}

const ErrorCase kCases[] = {
    {EmptyId, [](E& e, S&) { e.addItem({""}); }, "an empty id; expected a text of one character or more"},
    {TakenId, [](E& e, S& s) { e.addActivity(s.activity("line"), {"robot"}); },
     R"(the id "robot" is that of a resource already; expected one of its own)"},
    {TakenId, [](E& e, S&) { e.addResource(nullptr, {"moves"}); },
     R"(the id "moves" is that of a behaviour already; expected one of its own)"},
    {TakenId, [](E& e, S& s) { e.addBehaviour(s.resource("table"), "line"); },
     R"(the id "line" is that of an activity already; expected one of its own)"},
    {InUse, [](E& e, S& s) { e.addBehaviour(s.resource("robot"), "b"); }, R"("robot" has a behaviour already)"},
    {NoSuchPlace, [](E& e, S& s) { e.removeBehaviour(s.resource("table")); }, R"("table" has no behaviour)"},
    {UnknownObject, [](E& e, S&) { e.object("nobody"); }, R"("nobody" is not in this plan)"},
    {UnknownObject, [](E& e, S& s) { e.rename(removed(s), "x"); }, R"("hold" is not in this plan)"},
    {UnknownObject, [](E& e, S& s) { e.addActivity(removed(s), {"x"}); }, R"("hold" is not in this plan)"},
    {UnknownObject, [](E& e, S& s) { e.addLink(s.flow("load"), removed(s)); }, R"("hold" is not in this plan)"},
    {UnknownObject, [](E& e, S& s) { e.putItem(s.activity("load"), Relation::Items, S(kWorld).item("part")); },
     R"("part" is not in this plan)"},
    {Cycle, [](E& e, S& s) { e.moveActivity(s.activity("join"), s.activity("join")); },
     R"("Join" can't stand in "Join", which is itself or below it)"},
    {Cycle, [](E& e, S& s) { e.moveActivity(s.activity("join"), s.activity("press")); },
     R"("Join" can't stand in "press", which is itself or below it)"},
    {Cycle, [](E& e, S& s) { e.moveResource(s.resource("robot"), &s.resource("gripper")); },
     R"("robot" can't stand in "gripper", which is itself or below it)"},
    {WrongSort, [](E& e, S& s) { e.removeActivity(s.activity("line")); },
     R"("line" is the root of the process, which stays)"},
    {WrongSort, [](E& e, S& s) { e.moveActivity(s.activity("line"), s.flow("moves")); },
     R"("line" is the root of the process, which stays)"},
    {WrongSort, [](E& e, S& s) { e.addActivity(s.flow("table"), {"x"}); },
     R"("table" is a resource; expected an activity or a behaviour to hold activities)"},
    {WrongSort, [](E& e, S& s) { e.rename(s.object("moves"), "x"); },
     R"("moves" is a behaviour, which can't have a name)"},
    {WrongSort, [](E& e, S& s) { e.putItem(s.item("weld"), Relation::Holds, s.item("part")); },
     R"("weld" has no list "holds")"},
    {WrongSort, [](E& e, S& s) { e.putItem(s.item("panel"), Relation::Children, s.item("frame")); },
     R"("Frame" can't be put into "children" of "Panel"; expected a product, an assembly with "children", or a resource)"},
    {InUse, [](E& e, S& s) { e.dropList(s.item("cell"), Relation::Children); }, R"("cell" is a child of "robot")"},
    {InUse, [](E& e, S& s) { e.dropList(s.resource("robot"), Relation::Children); }, R"("gripper" stands in "robot")"},
    {NoSuchPlace, [](E& e, S&) { e.addItem({"x"}, 8); }, "position 8 in a list of 7"},
    {NoSuchPlace,
     [](E& e, S& s) { e.moveActivity(s.activity("load"), s.activity("line"), 3); }, // the one that moves doesn't count
     "position 3 in a list of 2"},
    {NoSuchPlace, [](E& e, S& s) { e.takeItem(s.activity("load"), Relation::Items, 1); },
     R"(no item at position 1 of "items" of "load")"},
    {NoSuchPlace, [](E& e, S& s) { e.takeItem(s.resource("robot"), Relation::Children, 1); }, // that is a resource
     R"(no item at position 1 of "children" of "robot")"},
    {NoSuchPlace, [](E& e, S& s) { e.removeLink(s.flow("join"), s.flow("load")); },
     R"(there is no link from "Join" to "load")"},
    {WrongSort, [](E& e, S& s) { e.addLink(e.addBehaviour(s.resource("table"), ""), s.flow("load")); },
     "a behaviour without an id can't be linked"},
    {WrongSort, [](E& e, S& s) { e.putItem(s.resource("table"), Relation::Children, s.resource("gripper")); },
     R"("gripper" can't be put into "children" of "table"; expected a product, or an assembly with "children")"},
    {WrongSort, [](E& e, S& s) { e.setKind(s.activity("line"), planner::ActivityKind::Logical); },
     R"("line" is the root of the process, which can't be logical)"},
    {InUse, [](E& e, S& s) { e.dropActivities(s.activity("join")); }, R"("hold" stands in "Join")"},
    {InUse, [](E& e, S& s) { e.changeId(s.object("moves"), ""); }, R"("moves" is linked, and can't be without an id)"},
    {EmptyId, [](E& e, S& s) { e.changeId(s.item("jig"), ""); },
     "an empty id; expected a text of one character or more"},
    {TakenId, [](E& e, S& s) { e.changeId(s.item("jig"), "weld"); },
     R"(the id "weld" is that of an item already; expected one of its own)"},
    {NoSuchPlace, [](E& e, S& s) { e.moveEntry(s.item("kit"), Relation::Children, 3, 0); },
     R"(no entry at position 3 of "children" of "kit")"},
    {NoSuchPlace, [](E& e, S& s) { e.moveLink(s.flow("load"), s.flow("join"), 7); }, "position 7 in a list of 6"},
    {InUse, [](E&, S& s) { E second(s.document()); },
     R"(the plan "title" has an editor already; expected one at a time)"},
    {BadValue, [](E& e, S&) { e.setPlanNotes(R"(1, "version": 2)"); },
     "notes:1:4: no JSON: syntax error while parsing value - unexpected ','; expected end of input"},
    {BadValue, [](E& e, S& s) { e.setNotes(s.item("jig"), R"([{"a": 1, "a": 2}])"); },
     R"(notes:1:11: the key "a" stands twice; expected it once (at /0/a))"},
    {BadText, [](E& e, S& s) { e.rename(s.item("jig"), "a\x01"); },
     R"(the text "a\u0001" holds a control character; expected none but tab and line end)"},
    {BadText, [](E& e, S& s) { e.rename(s.item("jig"), "a\xff"); },
     "the text \"a\xff\" can't be kept: byte 0xFF begins no character; expected UTF-8"},
    {BadValue,
     [](E&, S& s) {
         setShape(s, Shape::Form::Box, {1, 2});
     },
     R"("box" has 2 numbers; expected 3)"},
    {BadValue, [](E&, S& s) { setShape(s, Shape::Form::Sphere, {0}); },
     R"("sphere" has the size 0; expected sizes above 0)"},
    {BadValue, [](E& e, S& s) { e.setPlace(s.item("jig"), Place{std::vector<double>(4)}); },
     R"("place" has 4 numbers; expected 3, or 6 with the turns)"},
    {BadValue,
     [](E& e, S& s) { e.setPlace(s.item("jig"), Place{std::vector(3, std::numeric_limits<double>::quiet_NaN())}); },
     R"("place" has the number nan; expected finite ones)"},
};

TEST(EditErrors, ChangeNothing) {
    for (const ErrorCase& test : kCases) {
        SCOPED_TRACE(test.message);
        Session session(kWorld);
        const std::string first = session.text();
        try {
            test.edit(session.editor(), session);
            ADD_FAILURE() << "not refused:\n" << session.text();
        } catch (const EditError& error) {
            EXPECT_STREQ(error.what(), test.message);
            EXPECT_EQ(static_cast<int>(error.fault()), static_cast<int>(test.fault));
        }
        while (session.editor().undo()) { // what a case did to get there
        }
        EXPECT_EQ(session.text(), first);
    }
}

} // namespace
