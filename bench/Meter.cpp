#include "bench/Meter.h"

#include <ctime>
#include <fstream>
#include <malloc.h>
#include <string>

namespace bench {

double processorTime() {
    timespec now{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

namespace {

double statusBytes(const std::string& key) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == key) {
            double kibibytes = 0;
            status >> kibibytes;
            return 1024 * kibibytes;
        }
    }
    return 0;
}

} // namespace

PeakMemory::PeakMemory() {
    ::malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5\n"; // the peak begins anew
    before_ = statusBytes("VmRSS:");
}

double PeakMemory::get() const {
    return std::max(0.0, statusBytes("VmHWM:") - before_);
}

} // namespace bench
