#include "planner/desktop/toolkit/Progress.h"

#include <QCoreApplication>
#include <QProgressDialog>

namespace planner::desktop {

namespace {

constexpr qint64 kPatience = 700; // milliseconds before anything is shown
constexpr qint64 kBetweenPaints = 60;
constexpr double kNanosecondsInAMillisecond = 1e6;

} // namespace

Progress::Progress(QWidget* window) : window_(window) {
    SetCurrent(this);
}

Progress::~Progress() {
    SetCurrent(nullptr);
}

void Progress::Begun() {
    begun_.start();
    painted_ = 0;
}

void Progress::Ended() {
    delete dialog_.data();
    Q_EMIT worked(static_cast<double>(begun_.nsecsElapsed()) / kNanosecondsInAMillisecond);
}

void Progress::Report(long iDone, long iTotal) {
    const qint64 now = begun_.elapsed();
    if (now < kPatience || now - painted_ < kBetweenPaints) {
        return;
    }
    painted_ = now;
    if (!dialog_) {
        dialog_ = new QProgressDialog("Computing the bill…", "Cancel", 0, 0, window_);
        dialog_->setWindowModality(Qt::ApplicationModal); // nothing else takes events meanwhile
        dialog_->setMinimumDuration(0);
        dialog_->setAutoReset(false);
        dialog_->setAutoClose(false);
        dialog_->show();
    }
    constexpr int kThousand = 1000;
    dialog_->setMaximum(iTotal > 0 ? kThousand : 0);
    dialog_->setValue(iTotal > 0 ? static_cast<int>(std::min(iDone, iTotal) * kThousand / iTotal) : 0);
    QCoreApplication::processEvents(QEventLoop::X11ExcludeTimers); // what waits for its time reads the plan
}

bool Progress::IsCancelled() {
    return dialog_ && dialog_->wasCanceled();
}

} // namespace planner::desktop
