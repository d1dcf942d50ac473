// The picture of items in space: what is seen in it, what a person does in it by mouse and keyboard, and what stands
// there when there is nothing to be seen.

#include "desktop/Desk.h"

#include "planner/desktop/bom/BomArea.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/toolkit/FramePane.h"
#include "planner/desktop/widgets/Note.h"

#include "QORPlatform/visualization/QORVisManager.h"

#include <QAction>
#include <QColor>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using desk::Desk;

/// A board with a welding spot in its middle on the side of the viewer, and a part without a shape.
const std::string kItems = R"(
    {"id": "board", "kind": "product", "shape": {"box": [900, 15, 600]}},
    {"id": "spot", "kind": "fastener", "type": "Rivet", "shape": {"sphere": [90]}, "place": [450, 0, 300]},
    {"id": "bare", "kind": "product"})";

std::string planOf(const std::string& items, const std::string& lists) {
    return R"({"version": 1, "items": [)" + items + R"(], "process": {"id": "line", "children": [{"id": "one", )" +
           lists + R"(}, {"id": "end"}]}, "links": [["one", "end"]]})";
}
const std::string kPlan = planOf(kItems, R"("first_assigned": ["board", "bare"], "items": ["spot"])");

// Hues of colours, in degrees.
constexpr int kFastener = 353;
constexpr int kPicked = 35;
constexpr int kHovered = 197;

struct Seen {
    int count = 0; ///< of pixels
    QRect frame;
};

/// Pixels of a hue, however light they are, besides those of the axes in the corner and of the frame that tells where
/// the keyboard is.
Seen look(QWidget& scene, int hue) {
    constexpr int kAxes = 100;
    Desk::settle();
    const QImage picture = scene.grab().toImage();
    Seen seen;
    for (int y = 1; y + 1 < picture.height(); ++y) {
        for (int x = 1; x + 1 < picture.width(); ++x) {
            const QColor colour(picture.pixel(x, y));
            const int off = std::abs(colour.hsvHue() - hue);
            if ((x > kAxes || y < picture.height() - kAxes) && colour.hsvSaturation() > 110 &&
                std::min(off, 360 - off) < 10) {
                ++seen.count;
                seen.frame |= QRect(x, y, 1, 1);
            }
        }
    }
    return seen;
}

class Space : public testing::Test {
protected:
    explicit Space(const std::string& plan = kPlan) : desk_(plan, 3) {}

    QWidget& scene() { return desk_.find<QWidget>("scene"); }

    void press(const char* keys) {
        scene().setFocus();
        QTest::keyClicks(&scene(), keys);
    }

    /// Whether pointing there comes to the object of that id and nothing else; to nothing for an empty one.
    bool pointsAt(const QPoint& place, const std::string& id) {
        constexpr int kPatience = 3000; // the X server tells of it
        QTest::mouseMove(&scene(), place);
        return QTest::qWaitFor(
            [&] {
                return id.empty() ? hovered().GetSize() == 0
                                  : hovered().GetSize() == 1 && hovered().Contains(&item(id.c_str()));
            },
            kPatience);
    }

    /// Seen from the front, the spot in the middle.
    void lookFromTheFront() { press("1"); }

    QORXSO& hovered() { return *desk_.session().frmEditor().GetHSO(); }
    QORXSO& picked() { return *desk_.session().frmEditor().GetPSO(); }
    planner::Item& item(const char* id) { return static_cast<planner::Item&>(desk_.object(id)); }
    long revision(const char* id) { return QORVisManager::GetVisManager()->GetRevision(&desk_.object(id)); }

    void give(const char* id, std::optional<planner::Shape> shape) {
        desk_.session().perform([&](planner::PlanEditor& editor) { editor.setShape(item(id), shape); });
    }

    Desk desk_;
};

TEST_F(Space, ShowsItemsInTheirColoursWhereTheyStand) {
    lookFromTheFront();
    const Seen spot = look(scene(), kFastener);
    EXPECT_GT(spot.count, 1000);
    EXPECT_NEAR(spot.frame.center().x(), scene().width() / 2.0, 5);
    EXPECT_NEAR(spot.frame.center().y(), scene().height() / 2.0, 5);
    EXPECT_NEAR(spot.frame.width(), spot.frame.height(), 3);
}

TEST_F(Space, IsFittedInEachStandardView) {
    struct Case {
        const char* key;
        double width; ///< of the board, in millimetres
        double height;
    };
    desk_.window().choice().choose(&item("board")); // which gives it a colour of its own
    give("spot", std::nullopt);
    for (const Case& each : {Case{"1", 900, 600}, {"4", 900, 600}, {"3", 15, 600}, {"6", 15, 600}, {"7", 900, 15}}) {
        press("-----");
        const int small = look(scene(), kPicked).frame.width();
        press(each.key);
        const QRect frame = look(scene(), kPicked).frame;
        EXPECT_NEAR(frame.width() / each.width, frame.height() / each.height, 0.2) << each.key;
        EXPECT_GT(std::max(frame.width() * 1.0 / scene().width(), frame.height() * 1.0 / scene().height()), 0.8)
            << each.key << " " << small;
        EXPECT_TRUE(scene().rect().adjusted(3, 3, -3, -3).contains(frame)) << each.key;
    }
}

TEST_F(Space, LightsWhatThePointerIsOverAndChoosesWhatIsClicked) {
    lookFromTheFront();
    const QPoint middle = scene().rect().center();
    EXPECT_TRUE(pointsAt(middle - QPoint(60, 0), "board"));
    EXPECT_GT(look(scene(), kHovered).count, 10000);
    EXPECT_TRUE(pointsAt(middle, "spot"));

    QTest::mouseClick(&scene(), Qt::LeftButton, {}, middle);
    EXPECT_TRUE(picked().Contains(&item("spot")));
    EXPECT_EQ(desk_.window().choice().present(), &item("spot"));
    EXPECT_EQ(Desk::selected(desk_.bill()), "spot");
    EXPECT_EQ(desk_.find<QLineEdit>("id").text(), "spot");
    QTest::mouseClick(&scene(), Qt::LeftButton, Qt::ControlModifier, middle - QPoint(60, 0));
    EXPECT_EQ(picked().GetSize(), 2);
    EXPECT_TRUE(pointsAt({2, 2}, ""));
    EXPECT_GT(look(scene(), kPicked).count, 10000);
    QTest::mouseClick(&scene(), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(desk_.window().choice().present(), nullptr);
    EXPECT_EQ(look(scene(), kPicked).count, 0);
}

TEST_F(Space, LightsWhatIsHoveredInEveryWindow) {
    desk_.action("Bill and Items").trigger();
    desk_.action("Side by Side").trigger();
    Desk::settle();
    const QList<QWidget*> scenes = desk_.window().findChildren<QWidget*>("scene");
    ASSERT_EQ(scenes.size(), 2);
    hovered().SetContent({&item("board")});
    for (QWidget* const each : scenes) {
        EXPECT_GT(look(*each, kHovered).count, 3000);
    }
}

TEST_F(Space, FollowsShapeAndPlaceAndNothingElseIsMadeAnew) {
    lookFromTheFront();
    press("-");
    const Seen before = look(scene(), kFastener);
    const long board = revision("board");
    give("spot", planner::Shape{planner::Shape::Form::Sphere, {45}, "", {}, ""});
    const Seen smaller = look(scene(), kFastener);
    EXPECT_NEAR(smaller.frame.width() * 2, before.frame.width(), 4);
    desk_.window().choice().choose(&item("spot"));
    const Seen lit = look(scene(), kPicked);
    EXPECT_TRUE(lit.frame.adjusted(-2, -2, 2, 2).contains(smaller.frame));
    desk_.session().perform([&](planner::PlanEditor& editor) {
        editor.setPlace(item("spot"), planner::Place{{250, 0, 300}});
    });
    const Seen moved = look(scene(), kPicked);
    EXPECT_LT(moved.frame.right(), lit.frame.left()) << "its light goes with it";
    EXPECT_EQ(look(scene(), kFastener).count, 0);
    EXPECT_EQ(revision("board"), board);
    const long spot = revision("spot");
    Desk::settle();
    EXPECT_EQ(revision("spot"), spot) << "one edit, one revision";
}

TEST_F(Space, FollowsItemsThatGetAShapeOrLoseIt) {
    lookFromTheFront();
    const int before = look(scene(), kFastener).count;
    give("spot", std::nullopt);
    EXPECT_EQ(look(scene(), kFastener).count, 0);
    desk_.session().undo();
    EXPECT_EQ(look(scene(), kFastener).count, before);
    desk_.window().choice().choose(&item("bare"));
    EXPECT_EQ(look(scene(), kPicked).count, 0);
    give("bare", planner::Shape{planner::Shape::Form::Box, {90, 90, 90}, "", {}, ""});
    EXPECT_GT(look(scene(), kPicked).count, 500);
    desk_.session().perform([&](planner::PlanEditor& editor) {
        editor.setPlace(item("bare"), planner::Place{{100, 200, 100}});
    });
    EXPECT_GT(look(scene(), kPicked).count, 500) << "through the board";
    desk_.session().undo();
    desk_.session().undo();
    EXPECT_EQ(look(scene(), kPicked).count, 0);
    desk_.session().perform([&](planner::PlanEditor& editor) {
        editor.group("Another in its place", [&] {
            editor.takeItem(desk_.object("one"), planner::Relation::Items, 0);
            editor.addItem({"other", planner::ItemKind::Fastener});
            editor.putItem(desk_.object("one"), planner::Relation::Items, desk_.object("other"));
        });
    });
    EXPECT_EQ(look(scene(), kFastener).count, 0);
}

TEST(SpaceTest, PartsOfAFileStandInTheirColoursAndPlacesAndWhatIsNotThereIsTold) {
    const std::string parts = EXAMPLES "/door-parts.step";
    const auto item = [&](const char* id, const std::string& file, const char* part) {
        return R"({"id": ")" + std::string(id) + R"(", "kind": "product", "shape": {"step": ")" + file +
               R"(", "part": ")" + part + "\"}}";
    };
    Desk desk(planOf(item("skin", parts, "Outer panel") + "," + item("wing", parts, "Wing") + "," +
                         item("lost", "lost.step", "x") + "," + item("plan", "shop.plan.json", "x"),
                     R"("first_assigned": ["skin", "wing", "lost", "plan"])"),
              3);
    auto& scene = desk.find<QWidget>("scene");
    const auto& faults = desk.find<QLabel>("scene-faults");
    constexpr int kSkin = 210;
    scene.setFocus();
    QTest::keyClicks(&scene, "1");
    const QRect frame = look(scene, kSkin).frame;
    EXPECT_NEAR(frame.width() / 1100.0, frame.height() / 720.0, 0.05);
    ASSERT_TRUE(faults.isVisible());
    EXPECT_EQ(faults.text().replace(QString(EXAMPLES), "").replace(desk.file().section('/', 0, -2), ""),
              "lost: /lost.step: there is no such file\n"
              "plan: /shop.plan.json: this is no STEP file that can be read\n"
              "wing: /door-parts.step: there is no part \"Wing\" in this file, but \"Door\", \"Outer panel\", \"Inner "
              "panel\", \"Window glass\", \"Glass run channel\" and others");
    // A file that is cut off anywhere is no reason to end.
    QFile whole(QString::fromStdString(parts));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    for (const int size : {0, 9, 600, 5000, 90000, 200000}) {
        QFile cut(desk.file().section('/', 0, -2) + "/lost.step");
        ASSERT_TRUE(cut.open(QIODevice::WriteOnly));
        cut.write(bytes.left(size));
        cut.close();
        desk.session().perform([&](planner::PlanEditor& editor) { // which makes it look anew
            editor.setPlace(static_cast<planner::Item&>(desk.object("lost")), planner::Place{{0, 0, size * 1.0}});
        });
        Desk::settle();
        EXPECT_TRUE(faults.text().contains("lost: ")) << size << faults.text().toStdString();
    }
}

/// For a display without OpenGL.
TEST(BareTest, TheReasonStandsInThePlaceOfThePicture) {
    Desk desk(kPlan, 3);
    QStringList notes;
    for (const auto* const note : desk.window().findChildren<planner::desktop::Note*>()) {
        notes << note->text();
    }
    EXPECT_EQ(notes.filter("No 3D picture: ").size(), 1) << notes.join('|').toStdString();
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(board bare spot)");
    desk.window().choice().choose(&desk.object("spot"));
    desk.session().perform(
        [&](planner::PlanEditor& editor) { editor.removeItem(static_cast<planner::Item&>(desk.object("spot"))); });
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(board bare)");
}

} // namespace
