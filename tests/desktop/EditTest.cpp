// Editing by mouse and keyboard: every case ends with the plan that a person wanted.

#include "desktop/Desk.h"

#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/plan/RowChanges.h"

#include "planner/model/Contents.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>

#include <map>

namespace {

using desk::Desk;

QString names(const auto& list) {
    QStringList names;
    for (const auto* object : list) {
        names << QString::fromStdString(object->name());
    }
    return names.join(' ');
}

TEST(EditTest, FromAnEmptyWindowToFiveStepsWithABillByKeyboardAlone) {
    Desk desk("");
    for (const char* const name : {"cut", "bend", "weld", "paint", "pack"}) {
        QTest::keyClick(&desk.window(), Qt::Key_Return, Qt::ControlModifier);
        Desk::settle();
        desk.type(name, true);
    }
    EXPECT_EQ(desk.links(), "cut>bend bend>weld weld>paint paint>pack");
    Desk::click(desk.plan(), "bend");
    QTest::keyClick(&desk.window(), Qt::Key_I, Qt::ControlModifier);
    Desk::settle();
    desk.type("bracket", true);
    desk.action("Open Bill").trigger();
    Desk::settle();
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(bracket)");
    EXPECT_EQ(Desk::text(desk.plan()), "New plan(cut bend(bracket) weld paint pack)");
}

TEST(EditTest, TheToolBarLeadsFromAnEmptyWindowToABillOfThePlan) {
    Desk desk("");
    const auto press = [&](const char* text) {
        for (QToolButton* const button : desk.find<QToolBar>("tools").findChildren<QToolButton*>()) {
            if (button->text() == text) {
                QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(10, button->height() / 2));
                Desk::settle();
            }
        }
    };
    press("Add Step");
    desk.type("cut", true);
    press("Add Product");
    desk.type("sheet", true);
    Desk::click(desk.plan(), "cut");
    press("Add Step");
    desk.type("bend", true);
    press("Open Bill");
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(sheet)");
    EXPECT_EQ(desk.links(), "cut>bend");
}

TEST(EditTest, StepsAreNamedMovedLinkedAndRemovedInTheTree) {
    Desk desk;
    Desk::click(desk.plan(), "one");
    QTest::keyClick(&desk.plan(), Qt::Key_F2);
    desk.type("first", true);
    EXPECT_EQ(desk.object("one").name(), "first");

    Desk::drag(desk.plan(), "end", desk.plan(), "two");
    EXPECT_EQ(names(static_cast<planner::Activity&>(desk.object("two")).children), "end");
    EXPECT_TRUE(desk.action("Undo: Move \"end\"").isEnabled());
    desk.session().undo();

    Desk::click(desk.plan(), "first");
    Desk::click(desk.plan(), "end", Qt::ControlModifier);
    desk.action("Link in Order").trigger();
    EXPECT_EQ(desk.links(), "first>two two>end first>end");
    Desk::click(desk.plan(), "two");
    QTest::keyClick(&desk.plan(), Qt::Key_Delete);
    EXPECT_EQ(Desk::text(desk.plan()), "line(first end)");
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(door)");
}

TEST(EditTest, AnItemDraggedOntoAStepComesInTheRelationThatIsChosen) {
    Desk desk;
    Desk::drag(desk.find<QListView>("item-list"), "rack", desk.plan(), "end");
    auto& menu = desk.find<QMenu>("relation-menu");
    ASSERT_TRUE(menu.isVisible());
    for (QAction* const action : menu.actions()) {
        if (action->text() == "first assigned") {
            action->trigger();
        }
    }
    menu.close();
    EXPECT_EQ(names(static_cast<planner::Activity&>(desk.object("end")).firstAssigned), "rack");
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(rack hinge rivet door)");
    // From there to another step, in the same relation.
    desk.plan().setExpanded(Desk::row(desk.plan(), "end"), true);
    Desk::drag(desk.plan(), "rack", desk.plan(), "one");
    EXPECT_EQ(names(static_cast<planner::Activity&>(desk.object("one")).firstAssigned), "door rack");
    EXPECT_EQ(names(static_cast<planner::Activity&>(desk.object("end")).firstAssigned), "");
}

TEST(EditTest, PropertiesAreWrittenAndFollow) {
    Desk desk;
    Desk::click(desk.plan(), "one");
    QTest::keyClick(&desk.find<QComboBox>("kind"), 's');
    EXPECT_EQ(static_cast<planner::Activity&>(desk.object("one")).kind(), planner::ActivityKind::Station);

    auto& id = desk.find<QLineEdit>("id");
    id.setFocus();
    id.selectAll();
    desk.type("two", true); // taken
    EXPECT_EQ(id.text(), "one");

    Desk::click(desk.find<QListView>("item-list"), "door");
    auto& size = desk.find<QDoubleSpinBox>("shape-size-0");
    size.setFocus();
    size.selectAll();
    desk.type("500", true);
    EXPECT_EQ(static_cast<planner::Item&>(desk.object("door")).geometry().shape->sizes[0], 500);
    EXPECT_EQ(desk.window().choice().present(), &desk.object("door"));
    desk.session().undo();
    EXPECT_EQ(size.value(), 900);
    EXPECT_EQ(static_cast<planner::Item&>(desk.object("door")).geometry().shape->sizes[0], 900);
}

TEST(EditTest, WhatAFastenerJoinsIsTypedChosenAndTakenOut) {
    Desk desk;
    Desk::click(desk.find<QListView>("item-list"), "rivet");
    const auto& rivet = static_cast<planner::Fastener&>(desk.object("rivet"));
    auto& field = desk.find<QLineEdit>("join");
    field.setFocus();
    desk.type("door", true);
    desk.type("hin");
    QTest::keyClick(field.completer()->popup(), Qt::Key_Down);
    QTest::keyClick(field.completer()->popup(), Qt::Key_Return);
    Desk::settle();
    EXPECT_EQ(names(rivet.joins), "door hinge");
    EXPECT_EQ(field.text(), "");
    desk.type("nothing", true);
    EXPECT_EQ(field.text(), "nothing"); // still to be mended
    EXPECT_EQ(names(rivet.joins), "door hinge");
    auto& list = desk.find<QListWidget>("joins");
    Desk::click(list, "door");
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(names(rivet.joins), "hinge");
    desk.action("Undo: Take \"door\"").trigger();
    EXPECT_EQ(names(rivet.joins), "door hinge");
    EXPECT_EQ(list.count(), 2);
}

TEST(EditTest, AFieldThatGoesAwayWithItsShapeWritesNothing) {
    Desk desk;
    Desk::click(desk.find<QListView>("item-list"), "door");
    auto& door = static_cast<planner::Item&>(desk.object("door"));
    planner::Shape step;
    step.form = planner::Shape::Form::Step;
    step.file = "parts.step";
    desk.session().perform([&](planner::PlanEditor& editor) { editor.setShape(door, step); });
    desk.session().perform([&](planner::PlanEditor& editor) { editor.setShape(door, std::nullopt); });
    desk.action("Undo").trigger();
    desk.find<QLineEdit>("shape-part").setFocus();
    desk.action("Redo").trigger();
    EXPECT_FALSE(door.geometry().shape);
    EXPECT_FALSE(desk.action("Redo").isEnabled());
    desk.action("Undo").trigger();
    EXPECT_EQ(door.geometry().shape->file, "parts.step");
    step.file.clear();
    EXPECT_FALSE(desk.session().perform([&](planner::PlanEditor& editor) { editor.setShape(door, step); }));
}

struct RowsCase {
    const char* shown;
    const char* wanted;
    const char* changes;
};
constexpr RowsCase kRows[] = {{"abc", "abc", ""},        {"abc", "abcd", "+3,1"},
                              {"abc", "b", "-2,1 -0,1"}, {"abcd", "bcad", "0>2"},
                              {"abcd", "dabc", "3>0"},   {"abc", "xbyz", "-2,1 -0,1 +0,1 +2,2"},
                              {"aab", "ab", "-1,1"},     {"abcd", "dcba", "-0,4 +0,4"}};

TEST(EditTest, RowsThatAreStillWantedStay) {
    std::map<char, planner::Item> objects;
    const auto rowsOf = [&](const char* letters) {
        std::vector<planner::desktop::PlanRow> rows;
        for (; *letters; ++letters) {
            rows.push_back({&objects[*letters]});
        }
        return rows;
    };
    for (const RowsCase& each : kRows) {
        QStringList texts;
        for (const auto& change : planner::desktop::rowChanges(rowsOf(each.shown), rowsOf(each.wanted))) {
            const QString first = QString::number(change.first);
            texts << (change.kind == planner::desktop::RowChange::Move
                          ? first + '>' + QString::number(change.target)
                          : (change.kind == planner::desktop::RowChange::Remove ? '-' : '+') + first + ',' +
                                QString::number(change.count));
        }
        EXPECT_EQ(texts.join(' '), each.changes) << each.shown << " to " << each.wanted;
    }
}

} // namespace
