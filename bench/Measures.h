#pragma once

#include <benchmark/benchmark.h>

namespace bench {

/// What is measured; the counters of a run bear these names.
inline constexpr const char* kSize = "size";           // elements or steps of the plan
inline constexpr const char* kSeconds = "seconds";     // the least of all repetitions
inline constexpr const char* kReference = "reference"; // seconds of what the label of the run names
inline constexpr const char* kModel = "model";         // seconds of the model's own calls
inline constexpr const char* kPeak = "peak";           // bytes
inline constexpr const char* kFloorPeak = "floorPeak"; // bytes that the floor takes

/// Puts down that much of a run.
inline void note(benchmark::State& state, const char* what, double value) {
    state.counters[what] = benchmark::Counter(value);
}

// Register what there is to measure, at small sizes only where it has to be quick.
void addBillBenches(bool isQuick);
void addFileBenches(bool isQuick);
void addLiveBenches(bool isQuick);

/// Repetitions at a size: more where one is short.
inline int repetitionsAt(int size, bool isQuick) {
    const int many = size >= 1'000'000 ? 3 : size >= 100'000 ? 5 : 15;
    return isQuick ? (many + 4) / 5 : many;
}

} // namespace bench
