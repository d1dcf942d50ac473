#include "QORPlatform/toolkit/QORProgress.h"

#include <limits>
#include <utility>

namespace {

constexpr long kNever = std::numeric_limits<long>::max();

QORProgress* currentProgress = nullptr;
bool isWorking = false;
long stepsReported = 0;
long stepsInAll = 0;

} // namespace

long QORWork::_stepsToReport = kNever;

QORCancelled::~QORCancelled() = default;

const char* QORCancelled::what() const noexcept {
    return "cancelled";
}

QORProgress::~QORProgress() = default;

QORProgress* QORProgress::GetCurrent() {
    return currentProgress;
}

void QORProgress::SetCurrent(QORProgress* iProgress) {
    currentProgress = iProgress;
}

QORWork::QORWork(long iTotal) : _isOutermost(!isWorking) {
    if (!_isOutermost) {
        return;
    }
    if (currentProgress) {
        currentProgress->Begun();
        _stepsToReport = kStepsPerReport;
    }
    isWorking = true;
    stepsReported = 0;
    stepsInAll = iTotal;
}

QORWork::~QORWork() {
    if (!_isOutermost) {
        return;
    }
    isWorking = false;
    if (std::exchange(_stepsToReport, kNever) <= kStepsPerReport && currentProgress) {
        currentProgress->Ended();
    }
}

void QORWork::TellReport() {
    _stepsToReport = isWorking && currentProgress ? kStepsPerReport : kNever;
    if (_stepsToReport == kNever) {
        return;
    }
    stepsReported += kStepsPerReport;
    currentProgress->Report(stepsReported, stepsInAll);
    if (currentProgress->IsCancelled()) {
        throw QORCancelled();
    }
}
