#include "QORPlatform/dialog/QORDialogLoop.h"
#include "QORPlatform/frame/QORFrmWindow.h"
#include "QORPlatform/visualization/QORViewer.h"
#include "support/RecordingToolkit.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using recording::Log;
using recording::Toolkit;

TEST(Editor, HasItsDocumentAndSetsOfItsOwnUnlessItOnlyViews) {
    QORBaseUnknown document;
    {
        QORFrmEditor editor(&document);
        EXPECT_EQ(editor.GetDocument(), &document);
        EXPECT_EQ(document.GetReferenceCount(), 2);
        EXPECT_NE(editor.GetHSO(), nullptr);
        EXPECT_NE(editor.GetPSO(), nullptr);
        EXPECT_NE(editor.GetHSO(), editor.GetPSO());
    }
    EXPECT_EQ(document.GetReferenceCount(), 1);
    const QORFrmEditor viewing(nullptr, QORFrmEditor::WithoutSelection);
    EXPECT_EQ(viewing.GetDocument(), nullptr);
    EXPECT_EQ(viewing.GetHSO(), nullptr);
    EXPECT_EQ(viewing.GetPSO(), nullptr);
}

TEST(Editor, IsCurrentUntilAnotherIsOrItEnds) {
    auto first = std::make_unique<QORFrmEditor>(nullptr);
    auto second = std::make_unique<QORFrmEditor>(nullptr);
    EXPECT_EQ(QORFrmEditor::GetCurrentEditor(), nullptr) << "making one doesn't change which is current";
    QORFrmEditor::SetCurrentEditor(first.get());
    QORFrmEditor::SetCurrentEditor(second.get());
    first.reset();
    EXPECT_EQ(QORFrmEditor::GetCurrentEditor(), second.get());
    second.reset();
    EXPECT_EQ(QORFrmEditor::GetCurrentEditor(), nullptr);
}

/// A window with a viewer in its frame.
class FrameWindow : public testing::Test {
protected:
    Log log_;
    Toolkit toolkit_{log_};
    std::unique_ptr<QORFrmEditor> editor_ = std::make_unique<QORFrmEditor>(nullptr);
    QORVar<QORFrmWindow> window_ = QORVar<QORFrmWindow>::Adopt(new QORFrmWindow("plan", editor_.get()));
    QORViewer* viewer_ = new QORNavigation2DViewer(window_->GetViewerFrame(), "V", 0, 1, 1, kQORViewerPlain);
};

TEST_F(FrameWindow, TellsItsPeerOfTitleLayoutAndViewer) {
    window_->SetViewerSelectable(viewer_);
    window_->GetViewerFrame()->Attach4Sides(viewer_);
    window_->SetBaseName("plan");
    window_->SetBaseName("pl...an");
    EXPECT_EQ(log_.take(), "selectable V | layout | title pl...an");
    EXPECT_EQ(window_->GetSelectableViewer(), viewer_);
    EXPECT_EQ(window_->GetEditor(), editor_.get());
    viewer_->RequestDelayedDestruction();
    QORDialogLoop::Get().Run();
    editor_.reset();
    EXPECT_EQ(window_->GetSelectableViewer(), nullptr);
    EXPECT_EQ(window_->GetEditor(), nullptr);
}

TEST_F(FrameWindow, LivesOnAfterACloseAsLongAsItIsHeldAndEndsItsChildrenBeforeItsPeer) {
    window_->GetViewerFrame()->Attach4Sides(viewer_);
    viewer_->RequestDelayedDestruction();
    window_->AddRef();
    window_->ReportClose();
    log_.take();
    const recording::DialogSteps steps(log_);
    QORDialogLoop::Get().Run();
    EXPECT_EQ(log_.take(), "detached V from ViewerFrame | layout | layout | viewer gone | ended V | frame ended");
    EXPECT_STREQ(window_->GetBaseName(), "plan");
    window_ = nullptr;
    EXPECT_EQ(log_.take(), "layout | ended ViewerFrame | window gone | ended plan");
}

TEST_F(FrameWindow, IsShownFromItsCompletionOnUnlessItWasHidden) {
    window_->Raise();
    window_->SetShown(false);
    window_->Complete();
    EXPECT_EQ(log_.take(), "complete");
    EXPECT_FALSE(window_->IsShown());
    window_->Raise();
    window_->Complete();
    window_->SetShown(true);
    EXPECT_EQ(log_.take(), "shown | raised");
    EXPECT_TRUE(window_->IsShown());
    window_->SetShown(false);
    EXPECT_EQ(log_.take(), "hidden");
}

TEST_F(FrameWindow, MakesItsEditorTheCurrentOneWhenAPersonActivatesIt) {
    const auto other = QORVar<QORFrmWindow>::Adopt(new QORFrmWindow("other", nullptr));
    window_->ReportActivate();
    other->ReportActivate();
    EXPECT_EQ(QORFrmEditor::GetCurrentEditor(), editor_.get()) << "one without an editor changes nothing";
}

TEST_F(FrameWindow, StaysWhereItsCloseIsRefused) {
    bool refuses = true;
    window_->AddRef();
    window_->SetCloseGuard([&](QORFrmWindow&) {
        QORDialogLoop::Get().Run();
        return !refuses;
    });
    EXPECT_FALSE(window_->ReportClose());
    EXPECT_FALSE(window_->IsClosed());
    QORDialogLoop::Get().Run();
    refuses = false;
    EXPECT_TRUE(window_->ReportClose());
    EXPECT_TRUE(window_->IsClosed());
    EXPECT_TRUE(window_->ReportClose()) << "isn't asked again";
    log_.take();
    QORDialogLoop::Get().Run();
    EXPECT_EQ(log_.take(), "frame ended");
    EXPECT_TRUE(window_->IsClosed());
}

} // namespace
