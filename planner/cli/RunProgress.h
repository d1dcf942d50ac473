#pragma once

#include "QORPlatform/toolkit/QORProgress.h"

namespace planner {

/// What standard error shows of a run that lasts for more than a second: one line that tells what is being done, and
/// goes at the end. Only on a terminal. One at a time.
class RunProgress final : public QORProgress {
public:
    RunProgress();
    ~RunProgress() override;
    RunProgress(const RunProgress&) = delete;
    RunProgress& operator=(const RunProgress&) = delete;

    /// What is being done from now on, a text that stays, as "reading the plan". Null shows nothing more.
    static void phase(const char* doing);

    /// Removes the line, if it is there; the next comes soon. May be called in a handler of signals.
    static void clearLine();

    void Begun() override {}
    void Ended() override {}
    void Report(long iDone, long iTotal) override;
    bool IsCancelled() override { return false; } // a signal ends the whole program
};

} // namespace planner
