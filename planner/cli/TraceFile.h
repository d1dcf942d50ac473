#pragma once

#include <cstdio>
#include <optional>
#include <string>

class QORTrace;

namespace planner {

/// Has the library's trace on, and in a file, for as long as it lives.
class TraceFile {
public:
    /// "-" is standard error.
    explicit TraceFile(const std::string& path);
    ~TraceFile();
    TraceFile(const TraceFile&) = delete;
    TraceFile& operator=(const TraceFile&) = delete;

    /// Why there will be no trace, if so.
    std::optional<std::string> startError() const { return message(); }

    /// Ends the trace. Gives what went wrong since the beginning, or nothing.
    std::optional<std::string> finish();

private:
    void release();
    std::optional<std::string> message() const;

    std::string path_;
    QORTrace* trace_;
    std::FILE* file_ = nullptr;
    int error_ = 0;
};

} // namespace planner
