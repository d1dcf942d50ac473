#pragma once

#include "QORPlatform/toolkit/QORProgress.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

class QProgressDialog;

namespace planner::desktop {

/// Shows long work in a dialog in which a person can cancel it, and tells how long work took. Is told of all work while
/// it lives.
class Progress : public QObject, public QORProgress {
    Q_OBJECT

public:
    explicit Progress(QWidget* window);
    ~Progress() override;

    void Begun() override;
    void Ended() override;
    void Report(long iDone, long iTotal) override;
    bool IsCancelled() override;

Q_SIGNALS:
    /// Work is over, after so many milliseconds.
    void worked(double milliseconds);

private:
    QWidget* window_;
    QPointer<QProgressDialog> dialog_;
    QElapsedTimer begun_;
    qint64 painted_ = 0;
};

} // namespace planner::desktop
