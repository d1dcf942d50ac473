#pragma once

#include "VXMBomInfrastructure/VXMBomViewerTrace.h"

#include <exception>

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
