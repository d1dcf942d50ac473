#include "trace/QORTrace.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>

namespace {

/// A file that goes with the test, and what was written to it.
class TraceFile {
public:
    TraceFile() { setbuf(file_, nullptr); }
    ~TraceFile() { std::fclose(file_); }
    TraceFile(const TraceFile&) = delete;
    TraceFile& operator=(const TraceFile&) = delete;

    std::FILE* get() const { return file_; }
    std::string text() const {
        std::string read(static_cast<std::size_t>(std::ftell(file_)), '\0');
        std::rewind(file_);
        const std::size_t length = std::fread(read.data(), 1, read.size(), file_);
        EXPECT_EQ(length, read.size());
        return read;
    }

private:
    std::FILE* file_ = std::tmpfile();
};

TEST(Trace, WritesNothingUntilItIsSwitchedOn) {
    const TraceFile file;
    QORTrace trace("TestTrace", "a trace", 0, "STDERR", 1024);
    trace.SetOutput(file.get());
    trace.TraPutLN("before");
    trace.SetMode(1);
    trace.TraPut("text ");
    trace.TraPutX("number:", -7);
    trace.TraPutLN("");
    trace.TraPutLN("line");
    trace.SetMode(0);
    trace.TraPutLN("after");
    trace.Flush();
    EXPECT_EQ(file.text(), "text number:-7\nline\n");
}

TEST(Trace, CutsNothingThatIsLongerThanItsBuffer) {
    const TraceFile file;
    QORTrace trace("TestTrace", "a trace", 1, "STDERR", 16);
    trace.SetOutput(file.get());
    std::string expected;
    for (int i = 0; i < 100; ++i) {
        const std::string line(static_cast<std::size_t>(i), 'x');
        trace.TraPutLN(line.c_str());
        expected += line + "\n";
    }
    trace.Flush();
    EXPECT_EQ(file.text(), expected);
}

TEST(Trace, IsSwitchedOnFromTheEnvironmentByItsWholeName) {
    const std::pair<const char*, bool> cases[] = {{"TestTrace", true},       {"Other,TestTrace", true},
                                                  {"TestTrace,Other", true}, {"Test", false},
                                                  {"TestTraces", false},     {"", false}};
    for (const auto& [value, on] : cases) {
        setenv("QOR_TRACE", value, 1);
        EXPECT_EQ(QORTrace("TestTrace", "", 0, "STDERR", 1024).IsActive(), on) << value;
    }
    unsetenv("QOR_TRACE");
}

TEST(Trace, IsFoundByNameAsLongAsItIsLoaded) {
    {
        const QORTrace trace("TestTrace", "a trace", 0, "STDERR", 1024);
        EXPECT_EQ(QORTrace::Find("TestTrace"), &trace);
        EXPECT_STREQ(trace.GetDescription(), "a trace");
    }
    EXPECT_EQ(QORTrace::Find("TestTrace"), nullptr);
}

TEST(Trace, MakesItsFileWhenTheFirstLineComes) {
    const auto path = std::filesystem::path(testing::TempDir()) / "QORTraceTest.txt";
    std::filesystem::remove(path);
    {
        QORTrace trace("TestTrace", "", 1, path.c_str(), 1024);
        EXPECT_FALSE(std::filesystem::exists(path));
        trace.TraPutLN("kept");
    }
    std::ifstream file(path);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "kept\n");
    std::filesystem::remove(path);
}

} // namespace
