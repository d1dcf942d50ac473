#pragma once

#include <algorithm>
#include <limits>

namespace bench {

/// Processor time of this process in seconds, user and system: what others do on the machine isn't in it.
double processorTime();

/// Processor time that one call takes.
template <class Work>
double timeOf(Work work) {
    const double before = processorTime();
    work();
    return processorTime() - before;
}

/// The least of what was measured: noise only adds.
class Least {
public:
    void add(double value) { least_ = std::min(least_, value); }
    double get() const { return least_; }

private:
    double least_ = std::numeric_limits<double>::infinity();
};

/// Resident memory above what there was at the start, in bytes, at its peak. 0 where the system doesn't tell.
class PeakMemory {
public:
    PeakMemory();
    double get() const;

private:
    double before_;
};

} // namespace bench
