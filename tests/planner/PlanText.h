#pragma once

#include "planner/file/PlanReader.h"
#include "planner/file/TextSink.h"

#include <functional>
#include <memory>
#include <string>

/// Plans from their text, and back.
namespace plantext {

/// The plan, which a test takes to be good; its faults end up in the test's report.
std::unique_ptr<planner::Plan> read(const std::string& text);

/// The error lines of a text, each ended by a line end. The file is called "p".
std::string faultsOf(const std::string& text);

/// The standard form of a plan.
std::string written(const planner::Plan& plan);

/// What a function puts on a sink.
std::string printed(const std::function<void(planner::TextSink&)>& print);

/// What a file holds, and a file in the test's own folder with that content.
std::string contentOf(const std::string& path);
std::string makeFile(const std::string& name, const std::string& content);

/// The text, that many times.
std::string repeated(const std::string& text, int times);

} // namespace plantext
