#include "QORPlatform/trace/QORTrace.h"

#include "QORPlatform/framework/QORProcessServices.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace {

/// Never destroyed: traces of libraries sign off at the very end of the process.
std::vector<QORTrace*>& Traces() {
    static auto* const traces = new std::vector<QORTrace*>();
    return *traces;
}

bool IsSwitchedOnFromOutside(std::string_view iName) {
    const char* const value = QORGetEnv("QOR_TRACE");
    std::string_view names(value ? value : "");
    while (!names.empty()) {
        const std::size_t end = std::min(names.find(','), names.size());
        if (names.substr(0, end) == iName) {
            return true;
        }
        names.remove_prefix(std::min(end + 1, names.size()));
    }
    return false;
}

} // namespace

QORTrace::QORTrace(const char* iName, const char* iDescription, int iMode, const char* iOutput, int iBufferSize)
    : _name(iName ? iName : ""), _description(iDescription ? iDescription : ""), _mode(iMode),
      _outputName(iOutput ? iOutput : ""), _bufferSize(static_cast<std::size_t>(std::max(iBufferSize, 1))) {
    if (IsSwitchedOnFromOutside(_name)) {
        _mode = 1;
    }
    Traces().push_back(this);
}

QORTrace::~QORTrace() {
    Flush();
    if (_ownFile) {
        std::fclose(_ownFile);
    }
    std::erase(Traces(), this);
}

QORTrace* QORTrace::Find(const char* iName) {
    for (QORTrace* trace : Traces()) {
        if (iName && trace->_name == iName) {
            return trace;
        }
    }
    return nullptr;
}

void QORTrace::SetMode(int iMode) {
    Flush();
    _mode = iMode;
}

void QORTrace::SetOutput(std::FILE* iFile) {
    Flush();
    _redirected = iFile;
}

void QORTrace::TraPut(const char* iText) {
    if (IsActive()) {
        Write(iText);
    }
}

void QORTrace::TraPutX(const char* iText, int iNumber) {
    if (IsActive()) {
        Write(iText);
        Write(std::to_string(iNumber).c_str());
    }
}

void QORTrace::TraPutLN(const char* iText) {
    if (IsActive()) {
        Write(iText);
        Write("\n");
    }
}

void QORTrace::Write(const char* iText) {
    _buffer += iText ? iText : "";
    if (_buffer.size() >= _bufferSize) {
        Flush();
    }
}

void QORTrace::Flush() {
    if (_buffer.empty()) {
        return;
    }
    if (std::FILE* const file = Output()) {
        std::fwrite(_buffer.data(), 1, _buffer.size(), file);
    }
    _buffer.clear();
}

std::FILE* QORTrace::Output() {
    if (_redirected) {
        return _redirected;
    }
    if (_outputName == "STDERR") {
        return stderr;
    }
    if (!_ownFile && !_outputName.empty()) {
        _ownFile = std::fopen(_outputName.c_str(), "w");
    }
    return _ownFile;
}
