#include "QORPlatform/dialog/QORDialogLoop.h"
#include "QORPlatform/dialog/QORDlgFrame.h"
#include "QORPlatform/dialog/QORDlgWindow.h"
#include "QORPlatform/toolkit/QORLoopPeer.h"
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
        runLoop();
    }
    void endWindow() { std::exchange(window_, nullptr)->Release(); }
    std::string runLoop() {
        log_.take();
        QORDialogLoop::Get().Run();
        return log_.take();
    }

    QORDlgDialog* window_ = new QORDlgDialog(nullptr, "W");
    QORDlgFrame* frame_ = new QORDlgFrame(window_, "F", kQORFrameTag);
    QORDlgFrame* a_ = new QORDlgFrame(frame_, "A");
    QORDlgFrame* b_ = new QORDlgFrame(frame_, "B");
    Log log_;
    DialogSteps steps_{log_};
};

TEST_F(Dialogs, AttachOnlyChildrenAndOnlyOnceAndEndLastMadeFirst) {
    EXPECT_LT(frame_->Attach4Sides(nullptr), 0);
    EXPECT_LT(a_->Attach4Sides(b_), 0) << "B is no child of A";
    EXPECT_EQ(frame_->Attach4Sides(a_), QOR_OK);
    EXPECT_LT(frame_->Attach4Sides(a_), 0);
    EXPECT_EQ(frame_->ResetAttachment(a_), QOR_OK);
    EXPECT_LT(frame_->ResetAttachment(a_), 0);
    frame_->Attach4Sides(a_);
    EXPECT_EQ(log_.take(), "attached A to F | detached A from F | attached A to F");
    a_->RequestDelayedDestruction();
    log_.take();
    endWindow();
    EXPECT_EQ(QORDialogLoop::Get().GetWaitingCount(), 0);
    EXPECT_EQ(log_.take(), "ended B | detached A from F | ended A | ended F | ended W");
}

TEST_F(Dialogs, AreLeftWithoutParentWhileSomebodyHoldsThem) {
    QORVar<QORDlgFrame> held(a_);
    const QORWatch<QORDlgFrame> watch(a_);
    endWindow();
    EXPECT_EQ(log_.take(), "ended B | ended F | ended W");
    EXPECT_EQ(held->GetParent(), nullptr);
    held->RequestDelayedDestruction();
    EXPECT_FALSE(held->IsWaitingForEnd()) << "its first reference has gone with the parent";
    EXPECT_EQ(watch.Get(), a_);
    held = nullptr;
    EXPECT_EQ(log_.take(), "ended A");
    EXPECT_EQ(watch.Get(), nullptr);
}

TEST_F(Dialogs, EndWhenTheLoopRunsAndNotBefore) {
    b_->RequestDelayedDestruction();
    b_->RequestDelayedDestruction();
    EXPECT_EQ(log_.take(), "end of B requested");
    EXPECT_EQ(QORDialogLoop::Get().GetWaitingCount(), 1);
    EXPECT_EQ(runLoop(), "ended B");
    EXPECT_EQ(frame_->GetChildren(), std::vector<QORDialog*>{a_});
    EXPECT_EQ(runLoop(), "");
}

TEST_F(Dialogs, OfAWaitingParentAreEndedOnceByTheLoop) {
    frame_->RequestDelayedDestruction();
    std::exchange(window_, nullptr)->RequestDelayedDestruction();
    a_->RequestDelayedDestruction();
    b_->RequestDelayedDestruction();
    EXPECT_EQ(runLoop(), "ended B | ended A | ended F | ended W");
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
    (new Follower(window_, a_))->RequestDelayedDestruction();
    EXPECT_EQ(runLoop(), "end of A requested | ended A | ended follower");
}

TEST_F(Dialogs, AreNotEndedWhileAHandlerIsOnTheStack) {
    {
        const QORHandling menuOfA(a_);
        b_->RequestDelayedDestruction();
        EXPECT_EQ(runLoop(), "") << "the handler may go on to use what it asked to end";
        {
            const QORHandling dragOfNobody(nullptr);
            frame_->RequestDelayedDestruction();
            a_->RequestDelayedDestruction();
        }
        EXPECT_EQ(runLoop(), "") << "A is being handled, and stands in the frame";
    }
    EXPECT_EQ(runLoop(), "ended B | ended A | ended F");
    auto* const late = new QORDlgFrame(window_, "late");
    const QORHandling handling(window_);
    {
        const QORHandling closing(nullptr);
        late->RequestDelayedDestruction();
    }
    EXPECT_EQ(runLoop(), "ended late") << "whoever asked for it has returned";
}

/// Counts how often the host's loop is woken.
class HostLoop : public QORLoopPeer {
public:
    HostLoop() { QORDialogLoop::Get().SetPeer(this); }
    ~HostLoop() override { QORDialogLoop::Get().SetPeer(nullptr); }
    void WorkWaits() override { ++woken_; }

    int woken_ = 0;
};

TEST_F(Dialogs, WakeTheHostsLoopOnceForAllThatWaits) {
    const HostLoop host;
    a_->RequestDelayedDestruction();
    b_->RequestDelayedDestruction();
    EXPECT_EQ(host.woken_, 1);
    runLoop();
    {
        const QORHandling handling(frame_);
        frame_->RequestDelayedDestruction();
        EXPECT_EQ(host.woken_, 2);
        runLoop();
    }
    EXPECT_EQ(host.woken_, 3) << "again when nothing holds it up any more";
}

/// A dialog that notes the sizes that another one tells.
class SizeReader : public QORDlgDialog {
public:
    SizeReader() : QORDlgDialog(nullptr, "reader") {}

    void onSize(QORCommand* sender, QORNotification* notification, void* clientData) {
        auto* const window = static_cast<QORDlgWindow*>(sender);
        EXPECT_EQ(notification, window->GetWindSizeNotification());
        EXPECT_EQ(clientData, this);
        DRECT rect;
        window->GetRectDimensions(rect);
        told_ += std::to_string(rect.dx) + "x" + std::to_string(rect.dy) + " ";
    }
    std::string told_;
};

TEST_F(Dialogs, TellTheirSizeToWhoAnalysesItAndMayEndBeforeHim) {
    SizeReader reader;
    QORNotification* const size = window_->GetWindSizeNotification();
    const auto analyse = [&](QORCommand* sender, QORNotification* notification) {
        return reader.AddAnalyseNotificationCB(sender, notification, &SizeReader::onSize, &reader);
    };
    EXPECT_LT(analyse(nullptr, size), 0);
    EXPECT_LT(analyse(&reader, nullptr), 0);
    EXPECT_EQ(analyse(window_, size), QOR_OK);
    DRECT rect{1, 2, 3, 4};
    window_->GetRectDimensions(rect);
    EXPECT_EQ(rect, DRECT{}) << "no size at first";
    for (const DRECT& next : {DRECT{0, 0, 300, 200}, DRECT{0, 0, 300, 200}, DRECT{5, 0, 310, 200}}) {
        window_->SetRectDimensions(next);
    }
    QORNotification another;
    window_->SendNotification(&another);
    EXPECT_LT(reader.RemoveAnalyseNotificationCB(window_, size, nullptr), 0) << "other client data";
    EXPECT_EQ(reader.RemoveAnalyseNotificationCB(window_, size, &reader), QOR_OK);
    window_->SetRectDimensions({});
    EXPECT_EQ(reader.told_, "300x200 310x200 ");
    EXPECT_EQ(log_.take(), "made reader | reader calls back from W | reader no longer calls back from W");

    analyse(window_, size);
    QORDialog* const ended = window_;
    endWindow();
    log_.take();
    EXPECT_EQ(reader.RemoveAnalyseNotificationCB(ended, size, &reader), QOR_OK);
    EXPECT_EQ(log_.take(), "reader no longer calls back from nobody");
}

} // namespace
