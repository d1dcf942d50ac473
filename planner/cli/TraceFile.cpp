#include "planner/cli/TraceFile.h"

#include "QORPlatform/trace/QORTrace.h"

#include <cerrno>
#include <cstring>

namespace planner {

TraceFile::TraceFile(const std::string& path) : path_(path), trace_(QORTrace::Find("VXMBomViewerTrace")) {
    file_ = path == "-" ? stderr : std::fopen(path.c_str(), "we");
    if (!file_) {
        error_ = errno;
    } else if (trace_) {
        trace_->SetOutput(file_);
        trace_->SetMode(1);
    }
}

TraceFile::~TraceFile() {
    release();
}

void TraceFile::release() {
    if (!file_) {
        return;
    }
    if (trace_) {
        trace_->SetMode(0);
        trace_->SetOutput(nullptr);
    }
    errno = 0;
    const bool flushed = std::fflush(file_) == 0 && std::ferror(file_) == 0;
    const int flushError = errno;
    const bool closed = file_ == stderr || std::fclose(file_) == 0;
    if (!flushed || !closed) {
        error_ = flushError != 0 ? flushError : errno != 0 ? errno : EIO;
    }
    file_ = nullptr;
}

std::optional<std::string> TraceFile::finish() {
    release();
    return message();
}

std::optional<std::string> TraceFile::message() const {
    if (error_ == 0) {
        return std::nullopt;
    }
    return "the trace can't be written to " + (path_ == "-" ? "standard error" : path_) + ": " + std::strerror(error_);
}

} // namespace planner
