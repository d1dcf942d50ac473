// Plan files and bills as texts: reading a plan beside a bare pass of the JSON library over it, writing it, the formats
// of a bill, and the whole program.

#include "bench/Measures.h"
#include "bench/Meter.h"
#include "bench/Shapes.h"

#include "planner/bill/BillFormats.h"
#include "planner/file/PlanReader.h"
#include "planner/file/PlanWriter.h"

#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"

#include <nlohmann/json.hpp>

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {

using namespace planner;

namespace {

/// A file of the system that swallows what is written to it.
class Nowhere {
public:
    Nowhere() : descriptor_(::open("/dev/null", O_WRONLY)) {}
    ~Nowhere() { ::close(descriptor_); }
    Nowhere(const Nowhere&) = delete;
    Nowhere& operator=(const Nowhere&) = delete;

    int descriptor() const { return descriptor_; }

private:
    int descriptor_;
};

/// A plan as a file, for as long as this lives.
class PlanOnDisk {
public:
    explicit PlanOnDisk(const Plan& plan)
        : path_(std::filesystem::temp_directory_path() / ("bench-" + std::to_string(::getpid()) + ".plan.json")) {
        if (const auto error = writePlanFile(plan, path_)) {
            throw std::runtime_error(*error);
        }
    }
    ~PlanOnDisk() { std::filesystem::remove(path_); }
    PlanOnDisk(const PlanOnDisk&) = delete;
    PlanOnDisk& operator=(const PlanOnDisk&) = delete;

    const std::string& path() const { return path_; }
    std::string text() const {
        std::ifstream file(path_);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    std::string path_;
};

/// Takes every event and does nothing.
class BarePass final : public nlohmann::json_sax<nlohmann::json> {
public:
    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t&) override { return true; }
    bool string(string_t&) override { return true; }
    bool binary(binary_t&) override { return true; }
    bool start_object(std::size_t) override { return true; }
    bool end_object() override { return true; }
    bool start_array(std::size_t) override { return true; }
    bool end_array() override { return true; }
    bool key(string_t&) override { return true; }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override { return false; }
};

void finishRun(benchmark::State& state, int size, const Least& least) {
    note(state, kSize, size);
    note(state, kSeconds, least.get());
}

void measureRead(benchmark::State& state, const Shape& shape, int size) {
    const std::string text = PlanOnDisk(*shape.make(size).plan).text();
    Least read;
    Least pass;
    for ([[maybe_unused]] auto _ : state) {
        BarePass bare;
        pass.add(timeOf([&] { nlohmann::json::sax_parse(text.data(), text.data() + text.size(), &bare); }));
        const double before = processorTime();
        const ReadResult result = parsePlan(text, "plan", "plan");
        const double seconds = processorTime() - before;
        if (!result.plan) {
            state.SkipWithError(result.errors.front().c_str());
        }
        read.add(seconds);
        state.SetIterationTime(seconds);
    }
    finishRun(state, size, read);
    note(state, kReference, pass.get());
    state.SetLabel("bare SAX pass");
}

void measureWrite(benchmark::State& state, const Shape& shape, int size) {
    const Sample sample = shape.make(size);
    const Nowhere nowhere;
    Least write;
    for ([[maybe_unused]] auto _ : state) {
        const double seconds = timeOf([&] {
            TextSink sink(nowhere.descriptor());
            writePlan(*sample.plan, sink);
            sink.finish();
        });
        write.add(seconds);
        state.SetIterationTime(seconds);
    }
    finishRun(state, size, write);
}

void measureFormat(benchmark::State& state, const Shape& shape, int size, Format format) {
    const Sample sample = shape.make(size);
    const auto generator = VXMMakeBomGenerator(sample.root);
    const DOM_Document document = generator->GetBom(0);
    const Nowhere nowhere;
    Least written;
    for ([[maybe_unused]] auto _ : state) {
        const double seconds = timeOf([&] {
            TextSink sink(nowhere.descriptor());
            writeBill(readBill(document, generator->GetPreviewObjects()), format, "bill", sink);
            sink.finish();
        });
        written.add(seconds);
        state.SetIterationTime(seconds);
    }
    finishRun(state, size, written);
}

double childTime() {
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_usec);
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Processor time of `planner bom FILE` with its output going nowhere; negative when it fails.
double programTime(const std::string& path) {
    std::string program = PLANNER_PROGRAM;
    std::string command = "bom";
    std::string file = path;
    char* const arguments[] = {program.data(), command.data(), file.data(), nullptr};
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    const double before = childTime();
    pid_t child = 0;
    int status = ::posix_spawn(&child, program.c_str(), &actions, nullptr, arguments, environ);
    if (status == 0) {
        ::waitpid(child, &status, 0);
    }
    posix_spawn_file_actions_destroy(&actions);
    return status == 0 ? childTime() - before : -1;
}

void measureProgram(benchmark::State& state, const Shape& shape, int size) {
    const PlanOnDisk file(*shape.make(size).plan);
    Least program;
    Least parts;
    for ([[maybe_unused]] auto _ : state) {
        const double before = processorTime();
        const ReadResult result = readPlan(file.path());
        VXMMakeBomGenerator(result.plan->process())->GetBom(0);
        parts.add(processorTime() - before);
        const double seconds = programTime(file.path());
        if (seconds < 0) {
            state.SkipWithError("the program failed");
        }
        program.add(seconds);
        state.SetIterationTime(seconds);
    }
    finishRun(state, size, program);
    note(state, kReference, parts.get());
    state.SetLabel("reading and GetBom");
}

template <class Measure>
void add(const std::string& name, bool isQuick, Measure measure) {
    const Shape& chain = shapes().front();
    for (const int size : {10'000, 100'000, 1'000'000}) {
        if (isQuick && size > 100'000) {
            continue;
        }
        benchmark::RegisterBenchmark((name + '/' + std::to_string(size)).c_str(),
                                     [=, &chain](benchmark::State& state) { measure(state, chain, size); })
            ->Iterations(repetitionsAt(size, isQuick))
            ->UseManualTime();
    }
}

} // namespace

void addFileBenches(bool isQuick) {
    add("read", isQuick, measureRead);
    add("write", isQuick, measureWrite);
    for (const NamedFormat& format : kFormats) {
        add(std::string("format, ") + format.name, isQuick,
            [format](benchmark::State& state, const Shape& shape, int size) {
                measureFormat(state, shape, size, format.format);
            });
    }
    add("planner bom", isQuick, measureProgram);
}

} // namespace bench
