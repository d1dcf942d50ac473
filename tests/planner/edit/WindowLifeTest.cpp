// The window from its making to its end: the order of its steps, its title, and what it does where something is
// missing.

#include "planner/edit/WindowDesk.h"
#include "support/BomText.h"
#include "support/RecordingToolkit.h"

#include "dialog/QORDialogLoop.h"
#include "framework/QORMetaClass.h"
#include "navigation/QORTvwTreeSettingCtrl.h"

#include <gtest/gtest.h>

#include <sstream>

using editing::Desk;
using editing::kShop;
using editing::Window;
using recording::Log;
using recording::Toolkit;

namespace {

/// What happens to a window and to all that a person sees of it, with what it traces in between.
class Diary {
public:
    Diary() {
        log_.onLine([this] { bringTrace(); });
    }

    Toolkit& toolkit() { return toolkit_; }

    /// The lines since the last call.
    std::string take() {
        bringTrace();
        std::string text;
        for (const std::string& line : log_.lines()) {
            text += line + '\n';
        }
        log_.take();
        return text;
    }

private:
    void bringTrace() {
        const std::string text = trace_.text();
        std::istringstream lines(text.substr(seen_));
        seen_ = text.size();
        for (std::string line; std::getline(lines, line);) {
            if (line.find("VXMFabBomViewer") != std::string::npos || line.find("Failed") != std::string::npos) {
                log_.put(line);
            }
        }
    }

    Log log_;
    testmodel::TraceCapture trace_;
    std::size_t seen_ = 0;
    Toolkit toolkit_{log_};
    recording::DialogSteps steps_{log_};
};

/// A window with tree and items: what happens until it is there.
constexpr const char* kMadeInSpaceWithTree = R"(made W
made ViewerFrame in W
--> VXMFabBomViewer::Constructor
made  3D Bom Viewer in ViewerFrame
QOR3DViewpoint added at 0
--> VXMFabBomViewer::CreateNavigBox
QOR2DViewpoint added at 1
editor GraphViewpointEditor
made FrmWindowTag in ViewerFrame
made Bom Navig in FrmWindowTag
made Bom Navig in Bom Navig
attached Bom Navig to FrmWindowTag
layout
settings -1
roots 1
settings -1 anchored
<-- VXMFabBomViewer::CreateNavigBox
selectable  3D Bom Viewer
--> VXMFabBomViewer::SetViewpoint 
--> VXMFabBomViewer::MBOMItems3DView
shown 2
shown 1
sets 0 none
sets 0 0
draw
<-- VXMFabBomViewer::MBOMItems3DView
attached  3D Bom Viewer to ViewerFrame
layout
W calls back from W
--> VXMFabBomViewer::AddCallBacks
--> VXMFabBomViewer::GetRootActivity
<-- VXMFabBomViewer::GetRootActivity
<-- VXMFabBomViewer::AddCallBacks
<-- VXMFabBomViewer::Constructor
)";

/// Its end.
constexpr const char* kEnded = R"(--> VXMFabBomViewer Destructor 
sets 0 none
sets none none
hidden 2
hidden 1
draw
W no longer calls back from W
--> VXMFabBomViewer::RemoveBacks
<-- VXMFabBomViewer::RemoveBacks
detached  3D Bom Viewer from ViewerFrame
layout
end of  3D Bom Viewer requested
<-- VXMFabBomViewer Destructor 
layout
detached Bom Navig from FrmWindowTag
box gone
ended Bom Navig
ended Bom Navig
ended FrmWindowTag
viewer gone
ended  3D Bom Viewer
ended ViewerFrame
window gone
ended W
)";

/// A window with a tree alone, from its beginning to its end.
constexpr const char* kTreeAlone = R"(made W
made ViewerFrame in W
--> VXMFabBomViewer::Constructor
made  Bom Viewer in ViewerFrame
--> VXMFabBomViewer::CreateNavigBox
QOR2DViewpoint added at 1
editor GraphViewpointEditor
made FrmWindowTag in ViewerFrame
made Bom Navig in FrmWindowTag
made Bom Navig in Bom Navig
attached Bom Navig to FrmWindowTag
layout
settings -1
roots 1
settings -1 anchored
<-- VXMFabBomViewer::CreateNavigBox
selectable  Bom Viewer
attached  Bom Viewer to ViewerFrame
layout
W calls back from W
--> VXMFabBomViewer::AddCallBacks
--> VXMFabBomViewer::GetRootActivity
<-- VXMFabBomViewer::GetRootActivity
<-- VXMFabBomViewer::AddCallBacks
<-- VXMFabBomViewer::Constructor
--> VXMFabBomViewer Destructor 
draw
W no longer calls back from W
--> VXMFabBomViewer::RemoveBacks
<-- VXMFabBomViewer::RemoveBacks
detached  Bom Viewer from ViewerFrame
layout
end of  Bom Viewer requested
<-- VXMFabBomViewer Destructor 
layout
detached Bom Navig from FrmWindowTag
box gone
ended Bom Navig
ended Bom Navig
ended FrmWindowTag
viewer gone
ended  Bom Viewer
ended ViewerFrame
window gone
ended W
)";

/// A change that takes the door out of the bill.
constexpr const char* kFollowed = R"(--> VXMFabBomViewer::OnActivityCallback
--> VXMFabBomViewer::UpdateBom
roots 0
roots 1
redraw
draw
<-- VXMFabBomViewer::UpdateBom
sets 0 none
sets none none
hidden 1
draw
sets 0 none
sets 0 0
draw
<-- VXMFabBomViewer::OnActivityCallback
)";

TEST(WindowLife, BeginsInItsOrder) {
    Desk desk(kShop);
    Diary diary;
    const Window window = desk.open(3);
    EXPECT_EQ(diary.take(), kMadeInSpaceWithTree);
}

TEST(WindowLife, EndsInItsOrder) {
    Desk desk(kShop);
    Diary diary;
    Window window = desk.open(3);
    diary.take();
    window.close();
    EXPECT_EQ(diary.take(), kEnded);
}

TEST(WindowLife, OfATreeAloneHasNothingInSpace) {
    Desk desk(kShop);
    Diary diary;
    Window window = desk.open(1);
    window.close();
    EXPECT_EQ(diary.take(), kTreeAlone);
}

TEST(WindowLife, OfItemsAloneDiffersByTheRoot) {
    Desk desk(kShop);
    Diary diary;
    const Window window = desk.open(2);
    std::string expected = kMadeInSpaceWithTree;
    expected.erase(expected.find("roots 1\n"), 8);
    EXPECT_EQ(diary.take(), expected);
}

TEST(WindowLife, FollowsAChangeInItsOrder) {
    Desk desk(kShop);
    Diary diary;
    const Window window = desk.open(3);
    diary.take();
    desk.editor().putItem(desk.activity("two"), planner::Relation::Removed, desk.item("door"));
    EXPECT_EQ(diary.take(), kFollowed);
}

/// Ends the frame that the viewer stands in while the viewer waits for the dialog loop.
TEST(WindowLife, EndsAViewerThatWaitsWithItsFrameOnce) {
    Desk desk(kShop);
    Diary diary;
    Window window = desk.open(3);
    window.viewer().RequestDelayedDestruction();
    EXPECT_EQ(QORDialogLoop::Get().GetWaitingCount(), 1);
    diary.take();
    window.close();
    const std::string text = diary.take();
    EXPECT_EQ(text.find("ended  3D Bom Viewer"), text.rfind("ended  3D Bom Viewer")) << text;
    EXPECT_NE(text.find("ended  3D Bom Viewer"), std::string::npos) << text;
    EXPECT_EQ(QORDialogLoop::Get().GetWaitingCount(), 0);
}

TEST(WindowLife, KeepsAHeldViewerUntilItIsLetGo) {
    Desk desk(kShop);
    Window window = desk.open(3);
    QORVar<QORViewer> viewer(&window.viewer());
    window.close();
    EXPECT_EQ(viewer->GetParent(), nullptr);
    EXPECT_EQ(viewer->GetReferenceCount(), 1);
}

TEST(WindowLife, MayBeEndedByAPersonWhenTheLoopRuns) {
    Desk desk(kShop);
    QORBaseUnknown_var root(desk.plan().process());
    auto* const window = new VXMFabBomViewer("W", &desk.frmEditor(), root, 3);
    window->ReportClose();
    desk.editor().removeActivity(desk.activity("one"));
    QORDialogLoop::Get().Run();
    EXPECT_EQ(desk.plan().process()->GetEventPublisher()->GetSubscriptionCount(), 1);
}

TEST(WindowLife, HasItsClassAndResources) {
    Desk desk(kShop);
    const Window window = desk.open(1);
    EXPECT_STREQ(window->IsA(), "VXMFabBomViewer");
    for (const char* base : {"QORFrmWindow", "QORDlgDialog", "QORDlgWindow", "QORDialog", "QORCommand",
                             "QOREventSubscriber", "QORBaseUnknown"}) {
        EXPECT_EQ(window->IsAKindOf(base), 1) << base;
    }
    EXPECT_EQ(VXMFabBomViewer::ClassMeta()->CreateItself(), nullptr);
    EXPECT_STREQ(window->GetResourceFilename(-1), "QORFrmLayout");
    EXPECT_STREQ(window->GetResourceFilename(0), "QORFrmLayout");
    EXPECT_STREQ(window->GetResourceFilename(1), "QORDialog");
    EXPECT_EQ(window->GetResourceFilename(2), nullptr);
}

// Title.

struct TitleCase {
    const char* name;
    int width; // of the window, 0: it has none yet
    float graphicWidth;
    const char* title;
};

const TitleCase kTitles[] = {
    {"abcdefghijklmnopqrstuvwxyz1234", 205, 0, "abcdefghij...uvwxyz1234"},
    {"abcdefghijklmnopqrstuvwxyz1234", 300, 0, "abcdefghijklmnopqrstuvwxyz1234"},
    {"abcdefghijklmnopqrstuvwxyz1234", 299, 0, "abcdefghijklmn...qrstuvwxyz1234"},
    {"abcde", 50, 0, "abcde"},
    {"abcde", 49, 0, "ab...de"},
    {"abcde", 20, 0, "a...e"},
    {"abcde", 19, 0, "..."},
    {"abcde", 1, 0, "..."},
    {"", 0, 0, ""},
    {"", 500, 0, ""},
    {"abcde", 0, 50, "abcde"},
    {"abcde", 0, 49.9F, "ab...de"},
    {"abcde", 0, 0, "..."},
    {"äöüßé", 41, 0, "äö...ßé"},
};

TEST(WindowTitle, FollowsTheWidth) {
    Desk desk(kShop);
    for (const TitleCase& test : kTitles) {
        const Window window = desk.open(1, test.name);
        window.viewer().SetGraphicSize(test.graphicWidth, 10);
        DRECT rect;
        rect.dx = test.width;
        window->SetRectDimensions(rect);
        QORUnicodeString title;
        window->GetDisplayName(title);
        EXPECT_EQ(std::string(title), test.title) << test.name << " at " << test.width;
        if (test.width > 0) {
            EXPECT_EQ(std::string(window->GetBaseName()), test.title) << "set when the size came";
        }
    }
}

TEST(WindowTitle, IsTheWholeNameUntilTheSizeChanges) {
    Desk desk(kShop);
    const Window window = desk.open(1, "a name that is longer than the graphic area");
    EXPECT_EQ(std::string(window->GetBaseName()), "a name that is longer than the graphic area");
}

// Where something is missing.

TEST(WindowLacking, TreeSettingsGoesOnWithoutATree) {
    Desk desk(kShop);
    QORUseTvwTreeSettingCtrl("NoSuchComponent");
    const Window window = desk.open(3);
    QORUseTvwTreeSettingCtrl(nullptr);
    EXPECT_EQ(window.box().GetRootCount(), 0) << "the box that was made stays empty";
    desk.editor().putItem(desk.activity("one"), planner::Relation::FirstAssigned, desk.item("rack"));
    EXPECT_EQ(window.tree(), "");
    EXPECT_EQ(window.shown(), "hinge door") << "without a box nothing is rebuilt";
}

TEST(WindowLacking, SelectionSetsSaysSoInTheTrace) {
    Desk desk(kShop);
    QORFrmEditor looking(&desk.document(), QORFrmEditor::WithoutSelection);
    QORFrmEditor::SetCurrentEditor(&looking);
    Diary diary;
    const Window window(&looking, desk.plan().process(), 2);
    const std::string text = diary.take();
    EXPECT_NE(text.find("shown 2\nshown 1\nFailed to attach HSO to viewpoint for BOMViewer\n"
                        "Failed to attach PSO to viewpoint for BOMViewer\ndraw\n"),
              std::string::npos)
        << text;
}

TEST(WindowLacking, ARootWithABillStandsEmpty) {
    Desk desk(kShop);
    for (const int mode : {1, 2, 3}) {
        const Window window(&desk.frmEditor(), &desk.item("rack"), mode);
        EXPECT_EQ(window.tree(), "");
        desk.editor().rename(desk.item("door"), "d");
        EXPECT_EQ(window.tree(), "");
        EXPECT_EQ(window.shown(), mode == 1 ? "no view in space" : "");
    }
}

TEST(WindowDeathTest, EndsTheRunForAModeThatIsNone) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    Desk desk(kShop);
    for (const int mode : {0, 4, -1}) {
        EXPECT_DEATH(desk.open(mode), "AssertionFailed:0 < _iDisplayMode && 4 > _iDisplayMode.*\n?.*"
                                      "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer");
    }
}

TEST(WindowDeathTest, EndsTheRunWithoutAFrame) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    Desk desk(kShop);
    Log log;
    Toolkit toolkit(log);
    toolkit.refuseWindows();
    EXPECT_DEATH(desk.open(1), "AssertionFailed:NULL != _windowFrame.*\n?.*"
                               "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer");
}

TEST(WindowDeathTest, EndsTheRunWithoutAViewInSpace) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    Desk desk(kShop);
    Log log;
    Toolkit toolkit(log);
    toolkit.refuseViewers();
    EXPECT_DEATH(desk.open(2), "AssertionFailed:NULL != _viewpoint.*\n?.*"
                               "VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer");
    const Window window = desk.open(1);
    EXPECT_EQ(window.tree(), "Bom(hinge(pin) door)") << "a tree needs none";
}

} // namespace
