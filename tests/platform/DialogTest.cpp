#include "dialog/QORDialogLoop.h"
#include "dialog/QORDlgDialog.h"
#include "dialog/QORDlgFrame.h"
#include "support/RecordingToolkit.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using recording::DialogSteps;
using recording::Log;

/// A dialog W with a frame F, in which stand A and B.
class Dialogs : public testing::Test {
protected:
    ~Dialogs() override {
        if (window_) {
            window_->Release();
        }
        QORDialogLoop::Get().Run();
    }
    void endWindow() { std::exchange(window_, nullptr)->Release(); }

    QORDlgDialog* window_ = new QORDlgDialog(nullptr, "W");
    QORDlgFrame* frame_ = new QORDlgFrame(window_, "F", kQORFrameTag);
    QORDlgFrame* a_ = new QORDlgFrame(frame_, "A");
    QORDlgFrame* b_ = new QORDlgFrame(frame_, "B");
    Log log_;
    DialogSteps steps_{log_};
};

TEST_F(Dialogs, KnowParentsAndChildren) {
    EXPECT_EQ(a_->GetParent(), frame_);
    EXPECT_EQ(frame_->GetChildren(), (std::vector<QORDialog*>{a_, b_}));
    EXPECT_EQ(window_->GetParent(), nullptr);
    EXPECT_EQ(frame_->GetStyle(), 0x80000);
    EXPECT_EQ(window_->IsAKindOf("QORCommand"), 1);
    EXPECT_EQ(frame_->IsAKindOf("QORDlgWindow"), 0);
}

TEST_F(Dialogs, EndWithTheirParentLastMadeFirst) {
    frame_->Attach4Sides(a_);
    log_.take();
    endWindow();
    EXPECT_EQ(log_.take(), "ended B | detached A from F | ended A | ended F | ended W");
}

TEST_F(Dialogs, AreLeftWithoutParentWhileSomebodyHoldsThem) {
    QORVar<QORDlgFrame> held(a_);
    endWindow();
    EXPECT_EQ(log_.take(), "ended B | ended F | ended W");
    EXPECT_EQ(held->GetParent(), nullptr);
    held->RequestDelayedDestruction();
    EXPECT_FALSE(held->IsWaitingForEnd()) << "its first reference has gone with the parent";
    held = nullptr;
    EXPECT_EQ(log_.take(), "ended A");
}

TEST_F(Dialogs, AttachOnlyChildrenAndOnlyOnce) {
    EXPECT_LT(frame_->Attach4Sides(nullptr), 0);
    EXPECT_LT(a_->Attach4Sides(b_), 0) << "B is no child of A";
    EXPECT_EQ(frame_->Attach4Sides(a_), QOR_OK);
    EXPECT_LT(frame_->Attach4Sides(a_), 0);
    EXPECT_TRUE(frame_->IsAttached(a_));
    EXPECT_EQ(frame_->ResetAttachment(a_), QOR_OK);
    EXPECT_LT(frame_->ResetAttachment(a_), 0);
    EXPECT_EQ(log_.take(), "attached A to F | detached A from F");
}

TEST_F(Dialogs, EndWhenTheLoopRunsAndNotBefore) {
    b_->RequestDelayedDestruction();
    b_->RequestDelayedDestruction();
    EXPECT_EQ(log_.take(), "end of B requested");
    EXPECT_EQ(QORDialogLoop::Get().GetWaitingCount(), 1);
    QORDialogLoop::Get().Run();
    EXPECT_EQ(log_.take(), "ended B");
    EXPECT_EQ(frame_->GetChildren(), std::vector<QORDialog*>{a_});
    QORDialogLoop::Get().Run();
    EXPECT_EQ(log_.take(), "");
}

TEST_F(Dialogs, ThatWaitGoWithTheirParentOnce) {
    a_->RequestDelayedDestruction();
    frame_->RequestDelayedDestruction();
    log_.take();
    endWindow();
    EXPECT_EQ(log_.take(), "ended B | ended A | ended F | ended W");
    EXPECT_EQ(QORDialogLoop::Get().GetWaitingCount(), 0);
}

TEST_F(Dialogs, OfAWaitingParentAreEndedOnceByTheLoop) {
    std::exchange(window_, nullptr)->RequestDelayedDestruction();
    a_->RequestDelayedDestruction();
    b_->RequestDelayedDestruction();
    log_.take();
    QORDialogLoop::Get().Run();
    EXPECT_EQ(log_.take(), "ended B | ended A | ended F | ended W");
}

/// Asks for the end of another dialog when it ends itself.
class Follower : public QORDlgFrame {
public:
    Follower(QORDialog* parent, QORDialog* next) : QORDlgFrame(parent, "follower"), next_(next) {}
    ~Follower() override {
        next_->RequestDelayedDestruction();
        QORDialogLoop::Get().Run();
    }

private:
    QORDialog* next_;
};

TEST_F(Dialogs, RequestedWhileTheLoopRunsMayEndInANestedRun) {
    auto* const follower = new Follower(window_, a_);
    follower->RequestDelayedDestruction();
    log_.take();
    QORDialogLoop::Get().Run();
    EXPECT_EQ(log_.take(), "end of A requested | ended A | ended follower");
}

/// A dialog that notes the sizes that another one tells.
class SizeReader : public QORDlgDialog {
public:
    SizeReader() : QORDlgDialog(nullptr, "reader") {}

    void onSize(QORCommand* sender, QORNotification* notification, void* clientData) {
        DRECT rect;
        static_cast<QORDlgWindow*>(sender)->GetRectDimensions(rect);
        told_ += std::to_string(rect.dx) + "x" + std::to_string(rect.dy) + " ";
        expected_ = notification == static_cast<QORDlgWindow*>(sender)->GetWindSizeNotification() && clientData == this;
    }
    std::string told_;
    bool expected_ = false;
};

TEST_F(Dialogs, TellTheirSizeToWhoAnalysesIt) {
    auto* const reader = new SizeReader();
    QORNotification* const size = window_->GetWindSizeNotification();
    EXPECT_EQ(reader->AddAnalyseNotificationCB(window_, size, &SizeReader::onSize, reader), QOR_OK);
    window_->SetRectDimensions({0, 0, 300, 200});
    window_->SetRectDimensions({0, 0, 300, 200});
    window_->SetRectDimensions({5, 0, 310, 200});
    EXPECT_EQ(reader->told_, "300x200 310x200 ");
    EXPECT_TRUE(reader->expected_);

    QORNotification another;
    window_->SendNotification(&another);
    EXPECT_LT(reader->RemoveAnalyseNotificationCB(window_, size, nullptr), 0) << "other client data";
    EXPECT_EQ(reader->RemoveAnalyseNotificationCB(window_, size, reader), QOR_OK);
    window_->SetRectDimensions({});
    EXPECT_EQ(reader->told_, "300x200 310x200 ");
    EXPECT_EQ(log_.take(), "made reader | reader calls back from W | reader no longer calls back from W");
    reader->Release();
}

TEST_F(Dialogs, MayEndBeforeWhoAnalysesThem) {
    auto* const reader = new SizeReader();
    QORNotification* const size = window_->GetWindSizeNotification();
    reader->AddAnalyseNotificationCB(window_, size, &SizeReader::onSize, nullptr);
    QORDialog* const ended = window_;
    endWindow();
    log_.take();
    EXPECT_EQ(reader->RemoveAnalyseNotificationCB(ended, size, nullptr), QOR_OK);
    EXPECT_EQ(log_.take(), "reader no longer calls back from nobody");
    EXPECT_LT(reader->AddAnalyseNotificationCB(nullptr, size, &SizeReader::onSize, nullptr), 0);
    EXPECT_LT(reader->AddAnalyseNotificationCB(reader, nullptr, &SizeReader::onSize, nullptr), 0);
    reader->Release();
}

TEST_F(Dialogs, HaveNoSizeAtFirst) {
    DRECT rect{1, 2, 3, 4};
    window_->GetRectDimensions(rect);
    EXPECT_EQ(rect, DRECT{});
}

TEST_F(Dialogs, NameTheirResourcesByLevel) {
    EXPECT_STREQ(window_->GetResourceFilename(0), "QORDialog");
    EXPECT_STREQ(window_->GetResourceFilename(-1), "QORDialog");
    EXPECT_EQ(window_->GetResourceFilename(1), nullptr);
}

TEST_F(Dialogs, AreWatchedWithoutBeingKept) {
    const QORWatch<QORDlgFrame> watch(a_);
    EXPECT_EQ(watch.Get(), a_);
    endWindow();
    EXPECT_EQ(watch.Get(), nullptr);
    EXPECT_EQ(QORWatch<QORDlgFrame>().Get(), nullptr);
}

} // namespace
