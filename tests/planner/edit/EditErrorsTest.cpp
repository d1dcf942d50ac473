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
     R"("Frame" can't be a child; expected a product, or an assembly with "children")"},
    {InUse, [](E& e, S& s) { e.dropList(s.item("cell"), Relation::Children); }, R"("cell" is a child of "robot")"},
    {InUse, [](E& e, S& s) { e.dropList(s.resource("robot"), Relation::Children); }, R"("gripper" stands in "robot")"},
    {NoSuchPlace, [](E& e, S&) { e.addItem({"x"}, 7); }, "position 7 in a list of 6"},
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
    {BadText, [](E& e, S& s) { e.rename(s.item("jig"), "a\x01"); }, R"(the text "a\u0001" holds a control character)"},
    {BadText, [](E& e, S& s) { e.rename(s.item("jig"), "a\xff"); },
     "the text \"a\xff\" can't be kept: byte 0xFF begins no character; expected UTF-8"},
    {BadValue,
     [](E&, S& s) {
         setShape(s, Shape::Form::Box, {1, 2});
     },
     R"("box" has 2 numbers; expected 3)"},
    {BadValue, [](E&, S& s) { setShape(s, Shape::Form::Sphere, {0}); }, R"("sphere" has a size that isn't above 0)"},
    {BadValue, [](E& e, S& s) { e.setPlace(s.item("jig"), Place{std::vector<double>(4)}); },
     "a place of 4 numbers; expected 3 finite ones, or 6 with the turns"},
    {BadValue,
     [](E& e, S& s) { e.setPlace(s.item("jig"), Place{std::vector(3, std::numeric_limits<double>::quiet_NaN())}); },
     "a place of 3 numbers; expected 3 finite ones, or 6 with the turns"},
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
