#pragma once

#include <QFileSystemWatcher>
#include <QTimer>

#include <string>

namespace planner::desktop {

class PlanSession;

/// Notices that the plan's file was changed by somebody else.
class FileWatch : public QObject {
    Q_OBJECT

public:
    explicit FileWatch(PlanSession& session);

Q_SIGNALS:
    /// The file holds something else than when it was opened, saved, or last told of; or it is gone.
    void changedOutside();
    void goneOutside();

private:
    void follow();
    void look();

    PlanSession& session_;
    QFileSystemWatcher watcher_;
    QTimer calm_; // until a writer has done with the file
    QByteArray known_;
};

} // namespace planner::desktop
