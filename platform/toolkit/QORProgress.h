#pragma once

#include "QORPlatform/text/QORExport.h"

#include <exception>

/// Raised in the middle of work that a person has cancelled.
class QOR_EXPORT QORCancelled : public std::exception {
public:
    ~QORCancelled() override;
    const char* what() const noexcept override;
};

/// What a host shows of long work, and where a person may end it. Called in the middle of the work, on its thread:
/// nothing may change the model here, and of a person's doings only the wish to cancel may be looked at.
class QOR_EXPORT QORProgress {
public:
    virtual ~QORProgress();

    /// Work begins and ends, also by an exception. Work inside work isn't told of its own. Most of it is over at once:
    /// show something only when it lasts.
    virtual void Begun() = 0;
    virtual void Ended() = 0;

    /// So many steps are over, of about iTotal; 0 when nobody knows how many there will be. Told every
    /// QORWork::kStepsPerReport steps, a few thousand times a second: paint less often.
    virtual void Report(long iDone, long iTotal) = 0;

    /// Whether a person wants the work to end. Asked after each report; true ends the work with QORCancelled.
    virtual bool IsCancelled() = 0;

    /// What is told of all work from now on, null for nothing. Stays the caller's, who keeps it as long as it is set;
    /// not to be set while work is under way.
    static QORProgress* GetCurrent();
    static void SetCurrent(QORProgress* iProgress);
};

/// A piece of long work, for as long as this object stands on the stack of whoever does it. Work inside work is part of
/// the outer one.
class QOR_EXPORT QORWork {
public:
    static constexpr long kStepsPerReport = 1024;

    /// iTotal is about the number of steps, 0 when it isn't known.
    explicit QORWork(long iTotal = 0);
    ~QORWork();
    QORWork(const QORWork&) = delete;
    QORWork& operator=(const QORWork&) = delete;

    /// A step of the work under way is over; to be called by whoever does one, as often as he likes. Raises
    /// QORCancelled when a person has cancelled the work. Without work nothing happens.
    static void Step() {
        if (--_stepsToReport == 0) {
            TellReport();
        }
    }

private:
    static void TellReport();

    static long _stepsToReport;
    bool _isOutermost;
};
