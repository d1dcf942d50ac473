// The line is painted by a timer's signal and not by a thread: a second thread would make every shared pointer of the
// run dearer.

#include "planner/cli/RunProgress.h"

#include <array>
#include <csignal>
#include <cstring>
#include <sys/time.h>
#include <unistd.h>

namespace planner {

namespace {

constexpr int kPaintsPerSecond = 4;
constexpr int kMicroseconds = 1'000'000;

const char* volatile doing = nullptr;
volatile std::sig_atomic_t ticks = 0;
volatile std::sig_atomic_t isShown = 0;
volatile long stepsDone = 0;

/// A line that is put together without any allocation.
class Line {
public:
    void add(const char* text) {
        while (*text && length_ < text_.size()) {
            text_[length_++] = *text++;
        }
    }

    void add(long number) {
        std::array<char, 24> digits{};
        std::size_t first = digits.size() - 1;
        do {
            digits[--first] = static_cast<char>('0' + number % 10);
            number /= 10;
        } while (number > 0);
        add(&digits[first]);
    }

    void write() const { static_cast<void>(!::write(STDERR_FILENO, text_.data(), length_)); }

private:
    std::array<char, 160> text_{};
    std::size_t length_ = 0;
};

void paint(int /*signal*/) {
    const char* const now = doing;
    ticks = ticks + 1;
    if (!now || ticks <= kPaintsPerSecond) {
        return;
    }
    Line line;
    line.add("\r\033[Kplanner: ");
    line.add(now);
    line.add(" … ");
    if (stepsDone > 0) {
        line.add(stepsDone);
        line.add(" steps of work, ");
    }
    line.add(ticks / kPaintsPerSecond);
    line.add(" s");
    line.write();
    isShown = 1;
}

void setTimer(long interval) {
    const timeval every{0, interval};
    const itimerval timer{every, every};
    ::setitimer(ITIMER_REAL, &timer, nullptr);
}

} // namespace

RunProgress::RunProgress() {
    if (!::isatty(STDERR_FILENO)) {
        return;
    }
    struct sigaction action {};
    action.sa_handler = paint;
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGALRM, &action, nullptr);
    SetCurrent(this);
    setTimer(kMicroseconds / kPaintsPerSecond);
}

RunProgress::~RunProgress() {
    if (GetCurrent() == this) {
        setTimer(0);
        SetCurrent(nullptr);
        phase(nullptr);
    }
}

void RunProgress::phase(const char* now) {
    doing = now;
    stepsDone = 0;
    if (!now) {
        clearLine();
    }
}

void RunProgress::clearLine() {
    if (isShown) {
        isShown = 0;
        Line line;
        line.add("\r\033[K");
        line.write();
    }
}

void RunProgress::Report(long iDone, long /*iTotal*/) {
    stepsDone = iDone;
}

} // namespace planner
