#include "QORPlatform/trace/QORTrace.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>

namespace {

/// A file that goes with the test.
class Trace : public testing::Test {
protected:
    Trace() { std::filesystem::remove(path_); }
    ~Trace() override { std::filesystem::remove(path_); }

    std::string text() const {
        std::ifstream file(path_);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }
    const std::filesystem::path path_ = std::filesystem::path(testing::TempDir()) / "QORTraceTest.txt";
};

TEST_F(Trace, WritesNothingUntilItIsSwitchedOn) {
    {
        QORTrace trace("TestTrace", "a trace", 0, path_.c_str(), 1024);
        trace.TraPutLN("before");
        trace.SetMode(1);
        EXPECT_FALSE(std::filesystem::exists(path_)) << "made when the first line comes";
        trace.TraPut("text ");
        trace.TraPutX("number:", -7);
        trace.TraPutLN("");
        trace.TraPutLN("line");
        trace.SetMode(0);
        trace.TraPutLN("after");
    }
    EXPECT_EQ(text(), "text number:-7\nline\n");
}

TEST_F(Trace, CutsNothingThatIsLongerThanItsBuffer) {
    std::string expected;
    {
        QORTrace trace("TestTrace", "a trace", 1, path_.c_str(), 16);
        for (std::size_t length = 0; length < 100; ++length) {
            const std::string line(length, 'x');
            trace.TraPutLN(line.c_str());
            expected += line + "\n";
        }
    }
    EXPECT_EQ(text(), expected);
}

TEST_F(Trace, IsSwitchedOnFromTheEnvironmentByItsWholeName) {
    const std::pair<const char*, bool> cases[] = {{"TestTrace", true},       {"Other,TestTrace", true},
                                                  {"TestTrace,Other", true}, {"Test", false},
                                                  {"TestTraces", false},     {"", false}};
    for (const auto& [value, on] : cases) {
        setenv("QOR_TRACE", value, 1);
        const QORTrace trace("TestTrace", "", 0, "STDERR", 1024);
        EXPECT_EQ(trace.IsActive(), on) << value;
        EXPECT_EQ(QORTrace::Find("TestTrace"), &trace);
    }
    unsetenv("QOR_TRACE");
    EXPECT_EQ(QORTrace::Find("TestTrace"), nullptr) << "found as long as it is loaded";
}

} // namespace
