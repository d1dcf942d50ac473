#include "PlanText.h"

#include "planner/file/PlanWriter.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <set>
#include <sstream>
#include <unistd.h>

namespace plantext {

namespace {

/// The files that tests made; they go with the program.
struct MadeFiles {
    std::set<std::string> paths;

    ~MadeFiles() {
        for (const std::string& path : paths) {
            std::remove(path.c_str());
        }
    }
};

} // namespace

std::unique_ptr<planner::Plan> read(const std::string& text) {
    planner::ReadResult result = planner::parsePlan(text, "p", "title");
    for (const std::string& error : result.errors) {
        ADD_FAILURE() << error;
    }
    return std::move(result.plan);
}

std::string faultsOf(const std::string& text) {
    std::string lines;
    for (const std::string& error : planner::parsePlan(text, "p", "title").errors) {
        lines += error + '\n';
    }
    return lines;
}

std::string written(const planner::Plan& plan) {
    std::string text;
    planner::TextSink sink(text);
    planner::writePlan(plan, sink);
    EXPECT_EQ(sink.finish(), 0);
    return text;
}

std::string printed(const std::function<void(planner::TextSink&)>& print) {
    const std::string path = makeFile("printed", "");
    std::FILE* const file = std::fopen(path.c_str(), "w");
    planner::TextSink sink(::fileno(file));
    print(sink);
    EXPECT_EQ(sink.finish(), 0);
    std::fclose(file);
    return contentOf(path);
}

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

std::string makeFile(const std::string& name, const std::string& content) {
    // Test programs run side by side, each test in a process of its own.
    static MadeFiles made;
    std::string path = testing::TempDir() + "planner-" + std::to_string(::getpid()) + '-' + name;
    made.paths.insert(path);
    std::ofstream(path, std::ios::binary) << content;
    return path;
}

std::string repeated(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

} // namespace plantext
