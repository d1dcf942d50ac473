#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QThreadPool>
#include <QTimer>

#include <memory>
#include <vector>

namespace planner::desktop {

class PlanSession;

/// Keeps what isn't saved in a file of the user's own, so that it survives the end of the process: written when a
/// person pauses after edits, gone when the plan is saved or given up. Only the plan's text is made meanwhile; a thread
/// brings it to the disk, where it replaces the one before when it is complete.
class Recovery : public QObject {
    Q_OBJECT

public:
    /// A plan that was left behind by a process that is gone.
    struct Left {
        QString file;   ///< that the plan is kept in
        QString origin; ///< path of the plan's own file, empty when it has none
        QDateTime time; ///< of the last writing
    };

    explicit Recovery(PlanSession& session);
    ~Recovery() override;

    /// Folder of the recovery files.
    static QString folder();

    /// What was left behind, the latest first.
    static std::vector<Left> left();
    static void discard(const Left& left);

    /// Takes a plan that was left behind as the present one, unsaved. Gives faults, a line each.
    QStringList restore(const Left& left);

    /// The file of this process, whether it is there or not.
    QString file() const { return base_ + ".plan.json"; }

    /// Begins to write what isn't saved without waiting for a pause.
    void writeNow();

private:
    void schedule();
    void clear();

    PlanSession& session_;
    QString base_;
    std::unique_ptr<QLockFile> lock_;
    QTimer idle_;
    QThreadPool writer_; // of one thread, which writes one text behind the other
};

} // namespace planner::desktop
