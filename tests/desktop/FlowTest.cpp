// The picture of the flow: what it shows, and editing in it by mouse and by keys.

#include "desktop/Desk.h"

#include "planner/desktop/flow/FlowView.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/settings/Preferences.h"

#include <QAction>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace {

using desk::Desk;
using planner::desktop::Appearance;
using planner::desktop::ArrowItem;
using planner::desktop::FlowView;

/// "near" and "far" lead to the end, "stray" doesn't, "round" and "about" go in a circle, and there is a step inside.
const char* const kTangle = R"({"version": 1, "items": [{"id": "part", "kind": "product"}],
  "process": {"id": "line", "children": [
    {"id": "stray"}, {"id": "round"}, {"id": "about"}, {"id": "near", "children": [{"id": "inner"}]},
    {"id": "far", "first_assigned": ["part"]}, {"id": "end"}]},
  "links": [["near", "far"], ["far", "end"], ["round", "about"], ["about", "round"]]})";

FlowView& flowOf(Desk& desk) {
    return desk.find<FlowView>("flow-view");
}

void clickBox(Desk& desk, const char* id, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(flowOf(desk).viewport(), Qt::LeftButton, modifiers, flowOf(desk).placeOf(desk.object(id)));
    Desk::settle();
}

/// A place where nothing but the link is drawn.
QPoint placeOn(const FlowView& view, const ArrowItem* arrow) {
    const QRect all = view.mapFromScene(arrow->mapToScene(arrow->boundingRect())).boundingRect();
    for (int x = all.left(); x < all.right(); ++x) {
        for (int y = all.top(); y < all.bottom(); ++y) {
            if (view.itemAt(x, y) == arrow && view.itemAt(x + 3, y) == arrow) {
                return {x + 3, y};
            }
        }
    }
    throw std::runtime_error("the link can't be seen");
}

TEST(FlowTest, AWayALoopAndWhatLeadsNowhereAreTold) {
    Desk desk(kTangle);
    const FlowView& view = flowOf(desk);
    QStringList onWay;
    for (const char* const id : {"near", "far", "stray", "round", "end"}) {
        onWay << (view.boxOf(desk.object(id))->box().onWay ? id : "-");
    }
    EXPECT_EQ(onWay.join(' '), "near far - - end");
    EXPECT_EQ(view.boxOf(desk.object("inner")), nullptr);
    EXPECT_TRUE(view.boxOf(desk.object("near"))->box().hasInside);
    const auto isRed = [&](const char* from, const char* to) {
        const ArrowItem* const arrow = view.arrowBetween(desk.object(from), desk.object(to));
        const QRect around(placeOn(view, arrow) - QPoint(6, 6), QSize(12, 12));
        const QImage image = flowOf(desk).viewport()->grab(around).toImage();
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                const QColor colour = image.pixelColor(x, y);
                if (colour.red() > colour.green() + 100 && colour.red() > colour.blue() + 100) {
                    return true;
                }
            }
        }
        return false;
    };
    EXPECT_TRUE(isRed("round", "about"));
    EXPECT_FALSE(isRed("near", "far"));
}

TEST(FlowTest, ALinkIsDrawnSelectedAndRemovedByMouse) {
    Desk desk;
    FlowView& view = flowOf(desk);
    const QPoint from = view.placeOf(desk.object("one"));
    const QPoint to = view.placeOf(desk.object("end"));
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, from);
    QTest::mouseMove(view.viewport(), from + QPoint(0, 40));
    QTest::mouseMove(view.viewport(), to);
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, to);
    Desk::settle();
    EXPECT_EQ(desk.links(), "one>two two>end one>end");
    const ArrowItem* const arrow = view.arrowBetween(desk.object("one"), desk.object("end"));
    ASSERT_TRUE(arrow); // the picture has followed
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, placeOn(view, arrow));
    QTest::keyClick(&view, Qt::Key_Delete);
    Desk::settle();
    EXPECT_EQ(desk.links(), "one>two two>end");
    desk.session().undo();
    EXPECT_EQ(desk.links(), "one>two two>end one>end");
}

TEST(FlowTest, AStepIsChosenBothWaysAndOpened) {
    Desk desk(kTangle);
    clickBox(desk, "far");
    EXPECT_EQ(Desk::selected(desk.plan()), "far");
    EXPECT_EQ(desk.find<QLineEdit>("name").text(), "far");
    Desk::click(desk.plan(), "stray");
    EXPECT_TRUE(flowOf(desk).boxOf(desk.object("stray"))->isSelected());
    EXPECT_FALSE(flowOf(desk).boxOf(desk.object("far"))->isSelected());
    const QPoint near = flowOf(desk).placeOf(desk.object("near"));
    QTest::mouseDClick(flowOf(desk).viewport(), Qt::LeftButton, {}, near);
    QTest::mouseRelease(flowOf(desk).viewport(), Qt::LeftButton, {}, near);
    Desk::settle();
    EXPECT_NE(flowOf(desk).boxOf(desk.object("inner")), nullptr);
    QTest::keyClick(&flowOf(desk), Qt::Key_Backspace);
    Desk::settle();
    EXPECT_NE(flowOf(desk).boxOf(desk.object("far")), nullptr);
}

TEST(FlowTest, KeysChooseLinkAndRemove) {
    Desk desk;
    QTest::keyClick(&desk.window(), Qt::Key_4, Qt::AltModifier);
    ASSERT_TRUE(flowOf(desk).hasFocus());
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&flowOf(desk), key, modifiers);
        Desk::settle();
    };
    press(Qt::Key_Right);
    EXPECT_EQ(Desk::selected(desk.plan()), "one");
    press(Qt::Key_Right, Qt::AltModifier); // its link
    press(Qt::Key_Delete);
    EXPECT_EQ(desk.links(), "two>end");
    desk.window().choice().choose(&desk.object("two"));
    press(Qt::Key_Tab);
    EXPECT_EQ(Desk::selected(desk.plan()), "end");
    press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(Desk::selected(desk.plan()), "end two");
    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(desk.links(), "two>end end>two");
    press(Qt::Key_Delete);
    EXPECT_EQ(Desk::text(desk.plan()), "line(one)");
}

TEST(FlowTest, ThePictureHasTheColoursOfTheWindow) {
    for (const bool isDark : {true, false}) {
        planner::desktop::applyAppearance(isDark ? Appearance::Dark : Appearance::Light);
        Desk desk;
        const QImage image = flowOf(desk).viewport()->grab().toImage();
        EXPECT_EQ(image.pixelColor(2, 2).lightness() < 128, isDark);
        const QPoint border = flowOf(desk).placeOf(desk.object("one"));
        const QImage box = image.copy(QRect(border - QPoint(70, 25), QSize(140, 50)));
        int lightest = 0;
        int darkest = 255;
        for (int x = 0; x < box.width(); ++x) {
            for (int y = 0; y < box.height(); ++y) {
                lightest = std::max(lightest, box.pixelColor(x, y).lightness());
                darkest = std::min(darkest, box.pixelColor(x, y).lightness());
            }
        }
        EXPECT_GT(lightest - darkest, 120) << "the name can't be read";
    }
    planner::desktop::applyAppearance(Appearance::System);
}

} // namespace
