// What an edit refuses, and that nothing has changed then.

#include "planner/edit/EditSession.h"

#include <gtest/gtest.h>

#include <limits>

using editing::kWorld;
using editing::Session;
using planner::EditError;
using planner::ItemKind;
using planner::Relation;
using planner::Shape;
using Fault = planner::EditError::Fault;

namespace {

struct ErrorCase {
    const char* name;
    void (*edit)(Session& s);
    Fault fault;
    const char* message;
};

/// An activity that was removed just now.
planner::Activity& removed(Session& s) {
    planner::Activity& activity = s.activity("hold");
    s.editor().removeActivity(activity);
    return activity;
}

const ErrorCase kCases[] = {
    {"AnEmptyId", [](Session& s) { s.editor().addItem({""}); }, Fault::EmptyId,
     "an empty id; expected a text of one character or more"},
    {"ATakenId", [](Session& s) { s.editor().addActivity(s.activity("line"), {"robot"}); }, Fault::TakenId,
     R"(the id "robot" is that of a resource already; expected one of its own)"},
    {"ATakenIdOfAResource", [](Session& s) { s.editor().addResource(nullptr, {"moves"}); }, Fault::TakenId,
     R"(the id "moves" is that of a behaviour already; expected one of its own)"},
    {"ATakenIdOfABehaviour", [](Session& s) { s.editor().addBehaviour(s.resource("table"), "line"); }, Fault::TakenId,
     R"(the id "line" is that of an activity already; expected one of its own)"},
    {"ASecondBehaviour", [](Session& s) { s.editor().addBehaviour(s.resource("robot"), "b"); }, Fault::InUse,
     R"("robot" has a behaviour already)"},
    {"NoBehaviourToRemove", [](Session& s) { s.editor().removeBehaviour(s.resource("table")); }, Fault::NoSuchPlace,
     R"("table" has no behaviour)"},
    {"AnUnknownId", [](Session& s) { s.editor().object("nobody"); }, Fault::UnknownObject,
     R"("nobody" is not in this plan)"},
    {"ARemovedObject", [](Session& s) { s.editor().rename(removed(s), "x"); }, Fault::UnknownObject,
     R"("hold" is not in this plan)"},
    {"ARemovedContainer", [](Session& s) { s.editor().addActivity(removed(s), {"x"}); }, Fault::UnknownObject,
     R"("hold" is not in this plan)"},
    {"ARemovedEndOfALink", [](Session& s) { s.editor().addLink(s.flow("load"), removed(s)); }, Fault::UnknownObject,
     R"("hold" is not in this plan)"},
    {"AnObjectOfAnotherPlan",
     [](Session& s) {
         Session other(kWorld);
         s.editor().putItem(s.activity("load"), Relation::Items, other.item("part"));
     },
     Fault::UnknownObject, R"("part" is not in this plan)"},
    {"AnActivityInItself", [](Session& s) { s.editor().moveActivity(s.activity("join"), s.activity("join")); },
     Fault::Cycle, R"("Join" can't stand in "Join", which is itself or below it)"},
    {"AnActivityBelowItself", [](Session& s) { s.editor().moveActivity(s.activity("join"), s.activity("press")); },
     Fault::Cycle, R"("Join" can't stand in "press", which is itself or below it)"},
    {"AResourceBelowItself", [](Session& s) { s.editor().moveResource(s.resource("robot"), &s.resource("gripper")); },
     Fault::Cycle, R"("robot" can't stand in "gripper", which is itself or below it)"},
    {"RemovingTheRoot", [](Session& s) { s.editor().removeActivity(s.activity("line")); }, Fault::WrongSort,
     R"("line" is the root of the process, which stays)"},
    {"MovingTheRoot", [](Session& s) { s.editor().moveActivity(s.activity("line"), s.flow("moves")); },
     Fault::WrongSort, R"("line" is the root of the process, which stays)"},
    {"ActivitiesInAResource", [](Session& s) { s.editor().addActivity(s.flow("table"), {"x"}); }, Fault::WrongSort,
     R"("table" is a resource; expected an activity or a behaviour to hold activities)"},
    {"AListThatTheKindHasNot", [](Session& s) { s.editor().putItem(s.item("weld"), Relation::Holds, s.item("part")); },
     Fault::WrongSort, R"("weld" has no list "holds")"},
    {"AChildThatIsNoProduct",
     [](Session& s) { s.editor().putItem(s.item("panel"), Relation::Children, s.item("frame")); }, Fault::WrongSort,
     R"("Frame" can't be a child; expected a product, or an assembly with "children")"},
    {"ChildrenThatMakeAnAssemblyAProduct", [](Session& s) { s.editor().dropList(s.item("cell"), Relation::Children); },
     Fault::InUse, R"("cell" is a child of "robot")"},
    {"AListWithResources", [](Session& s) { s.editor().dropList(s.resource("robot"), Relation::Children); },
     Fault::InUse, R"("gripper" stands in "robot")"},
    {"APositionBehindTheEnd", [](Session& s) { s.editor().addItem({"x"}, 7); }, Fault::NoSuchPlace,
     "position 7 in a list of 6"},
    {"APositionThatGoesWithTheMovedOne",
     [](Session& s) { s.editor().moveActivity(s.activity("load"), s.activity("line"), 3); }, Fault::NoSuchPlace,
     "position 3 in a list of 2"},
    {"TakingWhereNothingStands", [](Session& s) { s.editor().takeItem(s.activity("load"), Relation::Items, 1); },
     Fault::NoSuchPlace, R"(no item at position 1 of "items" of "load")"},
    {"TakingAResourceAsAnItem", [](Session& s) { s.editor().takeItem(s.resource("robot"), Relation::Children, 1); },
     Fault::NoSuchPlace, R"(no item at position 1 of "children" of "robot")"},
    {"ALinkThatIsNotThere", [](Session& s) { s.editor().removeLink(s.flow("join"), s.flow("load")); },
     Fault::NoSuchPlace, R"(there is no link from "Join" to "load")"},
    {"ALinkOfANamelessBehaviour",
     [](Session& s) { s.editor().addLink(s.editor().addBehaviour(s.resource("table"), ""), s.flow("load")); },
     Fault::WrongSort, "a behaviour without an id can't be linked"},
    {"ANameWithAControlCharacter", [](Session& s) { s.editor().rename(s.item("jig"), "a\x01"); }, Fault::BadText,
     R"(the text "a\u0001" holds a control character)"},
    {"AShapeWithTooFewSizes",
     [](Session& s) {
         s.editor().setShape(s.item("jig"), Shape{Shape::Form::Box, {1, 2}, "", {}, ""});
     },
     Fault::BadValue, R"("box" has 2 numbers; expected 3)"},
    {"AShapeWithoutExtent",
     [](Session& s) {
         s.editor().setShape(s.item("jig"), Shape{Shape::Form::Sphere, {0}, "", {}, ""});
     },
     Fault::BadValue, R"("sphere" has a size that isn't above 0)"},
    {"APlaceOfFourNumbers",
     [](Session& s) {
         s.editor().setPlace(s.item("jig"), planner::Place{{1, 2, 3, 4}});
     },
     Fault::BadValue, "a place of 4 numbers; expected 3 finite ones, or 6 with the turns"},
    {"APlaceNowhere",
     [](Session& s) {
         s.editor().setPlace(s.item("jig"), planner::Place{{1, 2, std::numeric_limits<double>::quiet_NaN()}});
     },
     Fault::BadValue, "a place of 3 numbers; expected 3 finite ones, or 6 with the turns"},
};

void PrintTo(const ErrorCase& test, std::ostream* out) {
    *out << test.name;
}

class EditErrors : public testing::TestWithParam<ErrorCase> {};

TEST_P(EditErrors, ChangeNothing) {
    Session session(kWorld);
    const std::string first = session.text();
    try {
        GetParam().edit(session);
        FAIL() << "not refused:\n" << session.text();
    } catch (const EditError& error) {
        EXPECT_EQ(error.what(), std::string(GetParam().message));
        EXPECT_EQ(static_cast<int>(error.fault()), static_cast<int>(GetParam().fault));
    }
    while (session.editor().undo()) { // what a case did to get there
    }
    EXPECT_EQ(session.text(), first);
}

INSTANTIATE_TEST_SUITE_P(Plan, EditErrors, testing::ValuesIn(kCases),
                         [](const auto& each) { return std::string(each.param.name); });

TEST(EditTexts, AreUtf8) {
    Session session(kWorld);
    EXPECT_THROW(session.editor().rename(session.item("jig"), "a\xff"), EditError);
    EXPECT_THROW(session.editor().addItem({std::string("\xc3", 1)}), EditError);
    EXPECT_FALSE(session.editor().canUndo());
    EXPECT_EQ(session.listener().take(), "");
}

} // namespace
