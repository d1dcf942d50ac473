// Bills of all shapes: making the generator, its document, and releasing both, beside the same document made and
// released by Xerces-C alone and the model's calls made alone.

#include "bench/Floor.h"
#include "bench/Measures.h"
#include "bench/Meter.h"
#include "bench/ModelCalls.h"
#include "bench/Shapes.h"
#include "bench/StructureQuery.h"

#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"

#include <cstdlib>
#include <string>

namespace bench {

namespace {

void makeBill(const Sample& sample) {
    VXMMakeBomGenerator(sample.root)->GetBom(0);
}

/// The legacy algorithm, for as long as this lives.
class LegacyAlgorithm {
public:
    explicit LegacyAlgorithm(bool isWanted) {
        if (isWanted) {
            ::setenv(kVariable, "TRUE", 1);
        }
    }
    ~LegacyAlgorithm() { ::unsetenv(kVariable); }
    LegacyAlgorithm(const LegacyAlgorithm&) = delete;
    LegacyAlgorithm& operator=(const LegacyAlgorithm&) = delete;

private:
    static constexpr const char* kVariable = "FAB_BOM_OLD_ALGORITHM";
};

template <class Work>
double peakOf(Work work) {
    const PeakMemory peak;
    work();
    return peak.get();
}

void measureBill(benchmark::State& state, const Shape& shape, int size, bool isLegacy) {
    const Sample sample = shape.make(size);
    const LegacyAlgorithm legacy(isLegacy);
    const auto outline = outlineOf(VXMMakeBomGenerator(sample.root)->GetBom(0));
    note(state, kPeak, peakOf([&] { makeBill(sample); }));
    note(state, kFloorPeak, peakOf([&] { makeAndRelease(outline); }));
    Least bill;
    Least floor;
    Least model;
    if (outline.empty()) {
        state.SkipWithError("the bill is empty");
    }
    for ([[maybe_unused]] auto _ : state) {
        floor.add(timeOf([&] { makeAndRelease(outline); }));
        const double seconds = timeOf([&] { makeBill(sample); });
        bill.add(seconds);
        state.SetIterationTime(seconds);
        model.add(timeOf([&] { callModel(sample); }));
    }
    note(state, kSize, size);
    note(state, kSeconds, bill.get());
    note(state, kReference, floor.get());
    note(state, kModel, model.get());
    state.SetLabel("Xerces-C alone");
}

/// The query that a database would answer: its rows, written into the same document.
void measureQuery(benchmark::State& state, const Shape& shape, int size) {
    const Sample sample = shape.make(size);
    const StructureQuery query(*sample.plan);
    const auto outline = outlineOf(VXMMakeBomGenerator(sample.root)->GetBom(0));
    Least rows;
    Least floor;
    for ([[maybe_unused]] auto _ : state) {
        floor.add(timeOf([&] { makeAndRelease(outline); }));
        std::size_t written = 0;
        const double seconds = timeOf([&] { written = query.writeRows(); });
        if (written != outline.size()) {
            state.SkipWithError("the query gives another bill");
        }
        rows.add(seconds);
        state.SetIterationTime(seconds);
    }
    note(state, kSize, size);
    note(state, kSeconds, rows.get());
    note(state, kReference, floor.get());
    state.SetLabel("Xerces-C alone");
}

template <class Measure>
void addAtEachSize(const Shape& shape, const std::string& variant, bool isQuick, Measure measure) {
    const int largestQuick = variant.empty() ? 100'000 : 10'000;
    for (const int size : shape.sizes) {
        if (isQuick && size > largestQuick) {
            continue;
        }
        benchmark::RegisterBenchmark((shape.name + variant + '/' + std::to_string(size)).c_str(),
                                     [=](benchmark::State& state) { measure(state, size); })
            ->Iterations(repetitionsAt(size, isQuick))
            ->UseManualTime();
    }
}

} // namespace

void addBillBenches(bool isQuick) {
    for (const Shape& shape : shapes()) {
        addAtEachSize(shape, "", isQuick,
                      [&shape](benchmark::State& state, int size) { measureBill(state, shape, size, false); });
        if (shape.isStructure) {
            addAtEachSize(shape, ", SQLite", isQuick,
                          [&shape](benchmark::State& state, int size) { measureQuery(state, shape, size); });
        }
        if (shape.hasLegacy) {
            addAtEachSize(shape, ", legacy", isQuick,
                          [&shape](benchmark::State& state, int size) { measureBill(state, shape, size, true); });
        }
    }
}

} // namespace bench
