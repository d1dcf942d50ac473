#include "dialog/QORDialogLoop.h"
#include "frame/QORFrmWindow.h"
#include "frame/QORInit.h"
#include "support/RecordingToolkit.h"
#include "visualization/QORNavigation2DViewer.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>

namespace {

using recording::Log;
using recording::Toolkit;

/// A document with one root container, found by the name of an interface.
class Document : public QORBaseUnknown {
public:
    QORStatus QueryInterface(const QORInterfaceID& interface, void** out) override {
        const QORStatus own = QORAnswer(interface, out, init_);
        return own < 0 ? QORBaseUnknown::QueryInterface(interface, out) : own;
    }
    QORBaseUnknown* GetRootContainer(const char* interface) {
        if (std::strcmp(interface, "Root") != 0) {
            return nullptr;
        }
        root_.AddRef();
        return &root_;
    }
    QORBaseUnknown root_;

private:
    QORInitTie<Document> init_{this};
};

TEST(Editor, HasItsDocumentAndTwoSetsOfItsOwn) {
    Document document;
    {
        QORFrmEditor editor(&document);
        EXPECT_EQ(editor.GetDocument(), &document);
        EXPECT_EQ(document.GetReferenceCount(), 2);
        EXPECT_NE(editor.GetHSO(), nullptr);
        EXPECT_NE(editor.GetPSO(), nullptr);
        EXPECT_NE(editor.GetHSO(), editor.GetPSO());
    }
    EXPECT_EQ(document.GetReferenceCount(), 1);
}

TEST(Editor, MayHaveNeitherDocumentNorSets) {
    const QORFrmEditor viewing(nullptr, QORFrmEditor::WithoutSelection);
    EXPECT_EQ(viewing.GetDocument(), nullptr);
    EXPECT_EQ(viewing.GetHSO(), nullptr);
    EXPECT_EQ(viewing.GetPSO(), nullptr);
}

TEST(Editor, IsCurrentUntilAnotherIsOrItEnds) {
    EXPECT_EQ(QORFrmEditor::GetCurrentEditor(), nullptr);
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

TEST(DocumentInit, GivesACountedContainerOrNull) {
    Document document;
    const QORInit_var init(&document);
    const auto root = QORBaseUnknown_var::Adopt(init->GetRootContainer("Root"));
    EXPECT_EQ(root.Get(), &document.root_);
    EXPECT_EQ(document.root_.GetReferenceCount(), 2);
    EXPECT_EQ(init->GetRootContainer("Other"), nullptr);
}

class FrameWindow : public testing::Test {
protected:
    Log log_;
    Toolkit toolkit_{log_};
    std::unique_ptr<QORFrmEditor> editor_ = std::make_unique<QORFrmEditor>(nullptr);
};

TEST_F(FrameWindow, TellsItsPeerOfTitleLayoutAndViewer) {
    QORFrmWindow window("plan", editor_.get());
    EXPECT_STREQ(window.GetBaseName(), "plan");
    auto* const viewer = new QORNavigation2DViewer(window.GetViewerFrame(), "V", 0, 1, 1, kQORViewerPlain);
    window.SetViewerSelectable(viewer);
    window.GetViewerFrame()->Attach4Sides(viewer);
    window.SetBaseName("plan");
    window.SetBaseName("pl...an");
    EXPECT_EQ(log_.take(), "selectable V | layout | title pl...an");
    EXPECT_EQ(window.GetSelectableViewer(), viewer);
    EXPECT_EQ(window.GetEditor(), editor_.get());
}

TEST_F(FrameWindow, LosesSightOfViewerAndEditorThatEnd) {
    QORFrmWindow window("plan", editor_.get());
    auto* const viewer = new QORNavigation2DViewer(window.GetViewerFrame(), "V", 0, 1, 1, kQORViewerPlain);
    window.SetViewerSelectable(viewer);
    viewer->RequestDelayedDestruction();
    QORDialogLoop::Get().Run();
    editor_.reset();
    EXPECT_EQ(window.GetSelectableViewer(), nullptr);
    EXPECT_EQ(window.GetEditor(), nullptr);
}

TEST_F(FrameWindow, EndsItsChildrenBeforeItsPeer) {
    auto* const window = new QORFrmWindow("plan", nullptr);
    auto* const viewer = new QORNavigation2DViewer(window->GetViewerFrame(), "V", 0, 1, 1, kQORViewerPlain);
    window->GetViewerFrame()->Attach4Sides(viewer);
    viewer->RequestDelayedDestruction();
    window->ReportClose();
    log_.take();
    const recording::DialogSteps steps(log_);
    window->AddRef();
    QORDialogLoop::Get().Run();
    EXPECT_EQ(log_.take(), "detached V from ViewerFrame | layout | layout | viewer gone | ended V");
    window->Release();
    EXPECT_EQ(log_.take(), "layout | ended ViewerFrame | window gone | ended plan");
}

TEST_F(FrameWindow, HasNoFrameWhereTheToolkitShowsNone) {
    toolkit_.refuseWindows();
    EXPECT_EQ(QORFrmWindow("plan", nullptr).GetViewerFrame(), nullptr);
    QORSetToolkit(nullptr);
    EXPECT_NE(QORFrmWindow("plan", nullptr).GetViewerFrame(), nullptr);
}

} // namespace
