#pragma once

#include "QORPlatform/trace/QORTrace.h"

#include <exception>

/// The one trace of this library. It comes and goes with it; hosts find it by its name, "VXMBomViewerTrace".
extern QORTrace VXMBomViewerTrace;

/// Writes a line to the trace at once, and another one when the operation ends without an exception.
class VXMTraceMarks {
public:
    VXMTraceMarks(const char* iEntry, const char* iExit) : _exit(iExit) { VXMBomViewerTrace.TraPutLN(iEntry); }
    ~VXMTraceMarks() {
        if (std::uncaught_exceptions() == _exceptions) {
            VXMBomViewerTrace.TraPutLN(_exit);
        }
    }
    VXMTraceMarks(const VXMTraceMarks&) = delete;
    VXMTraceMarks& operator=(const VXMTraceMarks&) = delete;

private:
    const char* _exit;
    int _exceptions = std::uncaught_exceptions();
};
