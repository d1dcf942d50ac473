// The window from its making to its end: the order of its steps, what it hands over, its title, and what it does where
// something is missing.

#include "library/WindowDesk.h"
#include "support/BomText.h"
#include "support/RecordingToolkit.h"

#include "QORPlatform/dialog/QORDialogLoop.h"
#include "QORPlatform/frame/QORInit.h"
#include "QORPlatform/framework/QORMetaClass.h"
#include "QORPlatform/navigation/QORTvwTreeSettingCtrl.h"
#include "QORPlatform/notification/QORSPPActivityNotification.h"
#include "QORPlatform/visualization/QORViewpointEditor.h"
#include "VXMBomInfrastructure/model/QORISPPActivityModificationEvents.h"
#include "VXMBomInfrastructure/model/QORISPPActivityRoot.h"
#include "VXMBomInfrastructure/model/QORISPPProcessContainer.h"

#include <gtest/gtest.h>

#include <sstream>

using editing::Desk;
using editing::kShop;
using editing::Window;
using recording::Log;
using recording::Toolkit;

namespace {

/// A document whose one process is itself, and which publishes; who comes and goes is written down.
class LoggedProcess : public QORBaseUnknown {
public:
    explicit LoggedProcess(Log& log) : publisher_(log) {}

    QORMetaClass* GetMetaObject() const override { return planner::PlanDocument::ClassMeta(); }
    QORStatus QueryInterface(const QORInterfaceID& interface, void** found) override {
        return QORAnswer(interface, found, init_, container_, root_, activity_, events_);
    }
    QORBaseUnknown* GetRootContainer(const char*) {
        AddRef();
        return this;
    }
    QORListValQORBaseUnknown_var* GetAllProcess() {
        auto processes = std::make_unique<QORListValQORBaseUnknown_var>();
        processes->Append(QORBaseUnknown_var(this));
        return processes.release();
    }
    QOREventSubscriber* GetEventPublisher() { return &publisher_; }

private:
    class Publisher : public QOREventSubscriber {
    public:
        explicit Publisher(Log& log) : log_(log) {}
        void SubscriptionsChanged() override { log_.add("subscribed " + std::to_string(GetSubscriptionCount())); }

    private:
        Log& log_;
    };

    Publisher publisher_;
    QORInitTie<LoggedProcess> init_{this};
    QORISPPProcessContainerTie<LoggedProcess> container_{this};
    QORISPPActivityRootTie<LoggedProcess> root_{this};
    QORISPPActivityTie<LoggedProcess> activity_{this};
    QORISPPActivityModificationEventsTie<LoggedProcess> events_{this};
};

/// What happens to a window and to all that a person sees of it, with what it traces in between.
class Diary {
public:
    Diary() {
        log_.onLine([this] { bringTrace(); });
    }

    Log& log() { return log_; }

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
            if (line.find("VXMFabBomViewer") != std::string::npos || line.find("Failed") != std::string::npos ||
                line == "--- TRACE 1 ---") { // once for each bill
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

/// A window that opens, follows a change that takes the door out of the bill, and ends. Lines with a T are there for a
/// window with a tree only, those with a 3 for one with items.
constexpr const char* kLife = R"(  made W
  made ViewerFrame in W
  --> VXMFabBomViewer::Constructor
  made  3D Bom Viewer in ViewerFrame
3 QOR3DViewpoint added at 0
  --- TRACE 1 ---
  --> VXMFabBomViewer::CreateNavigBox
  QOR2DViewpoint added at 1
  editor GraphViewpointEditor
  made FrmWindowTag in ViewerFrame
  made Bom Navig in FrmWindowTag
  made Bom Navig in Bom Navig
  attached Bom Navig to FrmWindowTag
  layout
  settings -1
T +root 1-1
  settings -1 anchored
  <-- VXMFabBomViewer::CreateNavigBox
  selectable  3D Bom Viewer
3 --> VXMFabBomViewer::SetViewpoint 
3 --> VXMFabBomViewer::MBOMItems3DView
3 shown 2
3 shown 1
3 sets 0 none
3 sets 0 0
3 draw
3 <-- VXMFabBomViewer::MBOMItems3DView
  attached  3D Bom Viewer to ViewerFrame
  layout
  W calls back from W
  --> VXMFabBomViewer::AddCallBacks
  --> VXMFabBomViewer::GetRootActivity
  <-- VXMFabBomViewer::GetRootActivity
  subscribed 1
  <-- VXMFabBomViewer::AddCallBacks
  complete
  shown
  <-- VXMFabBomViewer::Constructor
  --> VXMFabBomViewer::OnActivityCallback
  --> VXMFabBomViewer::UpdateBom
  refill
T -root 1-1
  --- TRACE 1 ---
T +root 1-1
  refilled
  redraw
  draw
  <-- VXMFabBomViewer::UpdateBom
3 sets 0 none
3 sets none none
3 hidden 1
3 draw
3 sets 0 none
3 sets 0 0
  draw
  <-- VXMFabBomViewer::OnActivityCallback
  --> VXMFabBomViewer Destructor 
3 sets 0 none
3 sets none none
3 hidden 2
  draw
  W no longer calls back from W
  --> VXMFabBomViewer::RemoveBacks
  subscribed 0
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

std::string lifeIn(int mode) {
    std::istringstream lines(kLife);
    std::string text;
    for (std::string line; std::getline(lines, line);) {
        const bool happens = line[0] == 'T' ? mode != 2 : line[0] != '3' || mode != 1;
        if (const auto viewer = line.find("3D Bom"); mode == 1 && viewer != std::string::npos) {
            line.erase(viewer, 3);
        }
        text += happens ? line.substr(2) + '\n' : "";
    }
    return text;
}

TEST(WindowLife, GoesInItsOrderInEachMode) {
    for (const int mode : {3, 2, 1}) {
        Desk desk(kShop);
        Diary diary;
        LoggedProcess process(diary.log());
        QORFrmEditor editor(&process);
        QORFrmEditor::SetCurrentEditor(&editor);
        Window window(&editor, desk.plan().process(), mode);
        desk.editor().putItem(desk.activity("two"), planner::Relation::Removed, desk.item("door"));
        QORSPPActivityNotificationDispatcher::Dispatch(*process.GetEventPublisher(), 29);
        window.close();
        EXPECT_EQ(diary.take(), lifeIn(mode)) << "mode " << mode;
    }
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
    EXPECT_EQ(window->IsAKindOf("QORFrmWindow"), 1);
    EXPECT_EQ(VXMFabBomViewer::ClassMeta()->CreateItself(), nullptr);
    EXPECT_STREQ(window->GetResourceFilename(-1), "QORFrmLayout");
    EXPECT_STREQ(window->GetResourceFilename(0), "QORFrmLayout");
    EXPECT_STREQ(window->GetResourceFilename(1), "QORDialog");
    EXPECT_EQ(window->GetResourceFilename(2), nullptr);
}

TEST(WindowLife, HandsTheseNumbersOver) {
    for (const int mode : {1, 2, 3}) {
        QORTvwTreeSettingCtrl settings;
        settings.SetTreeFlag(0);
        Desk desk(kShop);
        const Window window = desk.open(mode);
        QORViewer& viewer = window.viewer();
        QORViewpoint* const graph = viewer.GetViewpoint(mode == 1 ? 1 : 2);
        const auto* const picking = dynamic_cast<QOR2DPickViewpointEditor*>(viewer.GetViewpointEditor(graph));
        ASSERT_NE(picking, nullptr);
        float width = 0;
        float height = 0;
        viewer.GetGraphicSize(width, height);
        unsigned char treeFlag = 9;
        settings.GetTreeFlag(treeFlag);
        const struct {
            const char* what;
            int number;
            int expected;
        } cases[] = {
            {"viewer style", viewer.GetStyle(), 0x40000},
            {"viewer options", viewer.GetOptions(), mode == 1 ? 0 : 8},
            {"width", static_cast<int>(width), 150},
            {"height", static_cast<int>(height), 200},
            {"frame style", static_cast<QORDlgFrame*>(window.box().GetBoxFrame()->GetParent())->GetStyle(), 0x80000},
            {"graph style", window.box().GetGraphStyle(), 0},
            {"pick mode", picking->GetMode(), 0},
            {"no duplicates", window.box().GetController()->IsNoDuplicate(), 0},
            {"extension mode", window.box().GetController()->GetExtensionMode(), 0},
            {"tree flag", treeFlag, 1}};
        for (const auto& each : cases) {
            EXPECT_EQ(each.number, each.expected) << each.what << " in mode " << mode;
        }
        EXPECT_EQ(std::string(window.box().GetHeading()), "Bom ID");
        EXPECT_EQ(window.box().GetViewpoint(), nullptr);
    }
}

TEST(WindowLife, HandsSettingsOfTheTreeToTheController) {
    Desk desk(kShop);
    const Window window = desk.open(1);
    window.tree();
    const QORBaseUnknown_var root(window.box().GetRoot(1)->GetTreeObject());
    const QORNavigController& controller =
        *window->CreateNavigBox(&window.viewer(), &desk.frmEditor(), root, "B", 0, 2, 1, 2, 1)->GetController();
    EXPECT_TRUE(controller.IsNoDuplicate());
    EXPECT_EQ(controller.GetDepth(), 2);
    EXPECT_EQ(controller.GetExtensionMode(), 1);
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
    {"", 0, 0, ""},
    {"abcde", 0, 50, "abcde"},
    {"abcde", 0, 49.9F, "ab...de"},
    {"abcde", 0, 0, "..."},
    {"äöüßé", 41, 0, "äö...ßé"},
};

TEST(WindowTitle, FollowsTheWidth) {
    Desk desk(kShop);
    for (const TitleCase& test : kTitles) {
        const Window window = desk.open(1, test.name);
        EXPECT_EQ(std::string(window->GetBaseName()), test.name) << "whole until the size changes";
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

/// What the run ends with, given as "AssertionFailed:<what>", and the source file behind it.
std::string failure(const std::string& what) {
    return "AssertionFailed:" + what + ".*\n?.*VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer";
}

TEST(WindowDeathTest, EndsTheRunForAModeThatIsNone) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    Desk desk(kShop);
    for (const int mode : {0, 4, -1}) {
        EXPECT_DEATH(desk.open(mode), failure("0 < _iDisplayMode && 4 > _iDisplayMode"));
    }
}

TEST(WindowDeathTest, EndsTheRunWithoutFrameOrViewInSpace) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    Desk desk(kShop);
    Log log;
    Toolkit toolkit(log);
    toolkit.refuseViewers();
    EXPECT_DEATH(desk.open(2), failure("NULL != _viewpoint"));
    EXPECT_EQ(desk.open(1).tree(), "Bom(hinge(pin) door)") << "a tree needs none";
    toolkit.refuseWindows();
    EXPECT_DEATH(desk.open(1), failure("NULL != _windowFrame"));
}

} // namespace
