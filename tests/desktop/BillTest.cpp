// Windows of bills: what they show in each mode, how they follow the plan, and choosing in both directions.

#include "desktop/Desk.h"

#include "planner/desktop/bom/BomArea.h"
#include "planner/desktop/bom/BomDesk.h"
#include "planner/desktop/bom/BomSide.h"
#include "planner/desktop/bom/ExportBill.h"
#include "planner/desktop/plan/Choice.h"
#include "planner/desktop/toolkit/FramePane.h"

#include "planner/sheet/Workbook.h"

#include "QORPlatform/visualization/QORVisManager.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSettings>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

using desk::Desk;

/// Names of what the platform shows in space in the window in front.
QString inSpace(Desk& desk) {
    const QORViewpoint* const viewpoint =
        desk.window().area().current()->window()->GetSelectableViewer()->GetMain3DViewpoint();
    QStringList names;
    if (viewpoint) {
        for (const QORBaseUnknown_var& object : QORVisManager::GetVisManager()->GetShown(*viewpoint)) {
            names << QString::fromStdString(planner::ModelObject::behind(object)->name());
        }
    }
    return names.join(' ');
}

struct ModeCase {
    int mode;
    const char* tree;
    const char* space;
};
constexpr ModeCase kModes[] = {
    {1, "Bom(hinge rivet door)", ""}, {2, "", "hinge door"}, {3, "Bom(hinge rivet door)", "hinge door"}};

TEST(BillTest, EachModeShowsItsParts) {
    for (const ModeCase& each : kModes) {
        Desk desk(desk::kPlan, each.mode);
        EXPECT_EQ(Desk::text(desk.bill()), each.tree) << each.mode;
        EXPECT_EQ(desk.bill().isVisible(), *each.tree != 0) << each.mode;
        EXPECT_EQ(inSpace(desk), each.space) << each.mode;
        EXPECT_EQ(desk.window().area().current()->view() != nullptr, each.mode > 1);
    }
}

TEST(BillTest, OpenRowsAndChoiceStayWhileEditsAndUndoAreFollowed) {
    Desk desk(desk::kPlan, 3);
    desk.bill().setExpanded(Desk::row(desk.bill(), "hinge"), true);
    Desk::click(desk.bill(), "pin");
    desk.session().perform([&](planner::PlanEditor& editor) {
        editor.putItem(desk.object("one"), planner::Relation::FirstAssigned, desk.object("rack"));
        editor.takeItem(desk.object("one"), planner::Relation::FirstAssigned, 0);
    });
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(hinge(pin) rivet rack)");
    EXPECT_EQ(Desk::selected(desk.bill()), "pin");
    EXPECT_EQ(inSpace(desk), "hinge");
    EXPECT_TRUE(desk.action("Undo: Take \"door\" out of \"one\"").isEnabled());
    desk.action("Undo").trigger();
    desk.action("Undo").trigger();
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(hinge(pin) rivet door)");
    EXPECT_EQ(inSpace(desk), "hinge door");
    desk.action("Redo").trigger();
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(hinge(pin) rivet door rack)");
}

TEST(BillTest, ARowChoosesItsObjectEverywhereAndTheOtherWayRound) {
    Desk desk;
    desk.action("Bill and Items").trigger();
    Desk::click(desk.bill(), "door");
    EXPECT_EQ(desk.window().choice().present(), &desk.object("door"));
    EXPECT_EQ(Desk::selected(desk.find<QListView>("item-list")), "door");
    EXPECT_TRUE(desk.session().frmEditor().GetPSO()->Contains(&desk.object("door")));

    Desk::click(desk.find<QListView>("item-list"), "hinge");
    EXPECT_EQ(Desk::selected(desk.bill()), "hinge");

    // What is under a closed row isn't opened, unless it is asked for.
    Desk::click(desk.find<QListView>("item-list"), "pin");
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(hinge rivet door)");
    desk.action("Show in Bill").trigger();
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(hinge(pin) rivet door)");
    EXPECT_EQ(Desk::selected(desk.bill()), "pin");

    // Picked in space.
    QORViewer& viewer = *desk.window().area().current()->window()->GetSelectableViewer();
    viewer.ReportPick(*viewer.GetMain3DViewpoint(), &desk.object("door"));
    EXPECT_EQ(Desk::selected(desk.bill()), "door");
}

TEST(BillTest, TheFilterFindsRowsThatNobodyHasOpenedAndLeadsThere) {
    Desk desk;
    QTest::keyClicks(&desk.find<QLineEdit>("bom-filter"), "PI");
    auto& matches = desk.find<QListView>("bom-matches");
    ASSERT_TRUE(matches.isVisible());
    ASSERT_EQ(matches.model()->rowCount(), 1);
    EXPECT_TRUE(matches.model()->index(0, 0).data().toString().startsWith("pin"));
    QTest::keyClick(&desk.find<QLineEdit>("bom-filter"), Qt::Key_Return);
    matches.setCurrentIndex(matches.model()->index(0, 0));
    QTest::keyClick(&matches, Qt::Key_Return);
    EXPECT_TRUE(desk.bill().isVisible());
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(hinge(pin) rivet door)");
    EXPECT_EQ(desk.window().choice().present(), &desk.object("pin"));
}

TEST(BillTest, ATabBearsTheNameThatItsRootHasNow) {
    Desk desk;
    const auto title = [&] {
        return desk.window().area().current()->title();
    };
    desk.session().perform([&](planner::PlanEditor& editor) { editor.rename(desk.object("line"), "Hall"); });
    EXPECT_EQ(title(), "Bill of Hall");
    desk.session().undo();
    EXPECT_EQ(title(), "Bill of line");
}

TEST(BillTest, APlanOfResourcesOpensTheBillOfTheFirst) {
    Desk desk(R"({"version": 1, "items": [{"id": "arm", "kind": "product"}], "process": {"id": "none"},
                  "resources": [{"id": "cell", "behaviour": {}, "children": [
                    {"id": "robot", "behaviour": {"assigned": ["arm"]}}, {"id": "out", "behaviour": {}}]}],
                  "links": [["robot", "out"]]})");
    EXPECT_EQ(desk.window().area().current()->title(), "Bill of cell");
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(arm)");
}

TEST(BillTest, ABillIsExpandedCopiedAndExported) {
    Desk desk;
    desk.action("Expand All").trigger();
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(hinge(pin) rivet door)");
    desk.action("Copy as Text").trigger();
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith(
        "line\n  hinge (product)\n    pin (product)\n  rivet (fastener, Rivet)\n  door"));
    const auto& side = *desk.window().desk().currentSide();
    const QString path = QFileInfo(desk.file()).path() + "/bill.csv";
    EXPECT_EQ(planner::desktop::writeBillFile(side.bill(), side.heading(), path), "");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().endsWith("1,BOMFastener,rivet,rivet\r\n1,BOMNode,door,door\r\n"));
    EXPECT_EQ(planner::desktop::writeBillFile(side.bill(), side.heading(), path + ".xlsx").isEmpty(),
              !planner::Workbook::complaintOn(0, ""));
    EXPECT_NE(planner::desktop::writeBillFile(side.bill(), side.heading(), path + ".pdf"), "");
}

TEST(BillTest, FastenersChosenInTheDialogAreKeptAndShownInBillsOpenedAgain) {
    Desk desk;
    QTimer::singleShot(50, [] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QTest::mouseClick(dialog->findChild<QCheckBox*>("ShowRivet"), Qt::LeftButton, {}, QPoint(8, 8));
        dialog->accept();
    });
    desk.action("Fasteners in Bills").trigger();
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(hinge rivet door)");
    for (QPushButton* const button : desk.window().findChildren<QPushButton*>()) {
        if (button->text() == "Open Them Again") {
            button->click();
            break;
        }
    }
    Desk::settle();
    EXPECT_EQ(Desk::text(desk.bill()), "Bom(hinge door)");
    EXPECT_FALSE(QSettings().value("fasteners/ShowRivet").toBool());
}

TEST(BillTest, WindowsStandSideBySideAndCloseWhileARebuildIsDue) {
    Desk desk;
    desk.action("Bill and Items").trigger();
    desk.action("Side by Side").trigger();
    EXPECT_EQ(desk.window().area().panes().size(), 2U);
    EXPECT_TRUE(desk.window().area().isSplit());
    desk.action("All in Tabs").trigger();
    EXPECT_FALSE(desk.window().area().isSplit());
    desk.session().perform([&](planner::PlanEditor& editor) {
        editor.group("Close in between", [&] {
            editor.addItem({"new"});
            desk.action("Close").trigger();
        });
    });
    Desk::settle();
    EXPECT_EQ(desk.window().area().panes().size(), 1U);
    desk.action("Close").trigger();
    Desk::settle();
    EXPECT_EQ(desk.window().area().current(), nullptr);
    desk.session().undo();
}

} // namespace
