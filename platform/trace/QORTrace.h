#pragma once

#include "QORPlatform/text/QORExport.h"

#include <cstdio>
#include <string>

/// A named trace of one module. Writes nothing until it is switched on: from the environment, where QOR_TRACE lists the
/// names of traces separated by commas, or by a host through Find and SetMode.
class QOR_EXPORT QORTrace {
public:
    /// iMode 0 is off, anything else on; iOutput is "STDERR" or the path of a file that is made when the first line
    /// comes, empty for nowhere; iBufferSize is how many bytes may wait before they are written, and cuts nothing. Null
    /// texts are empty ones.
    QORTrace(const char* iName, const char* iDescription, int iMode, const char* iOutput, int iBufferSize);
    ~QORTrace();
    QORTrace(const QORTrace&) = delete;
    QORTrace& operator=(const QORTrace&) = delete;

    /// The trace of that name that is loaded at present, the first of several; null when there is none and for null.
    static QORTrace* Find(const char* iName);

    const char* GetName() const { return _name.c_str(); }
    const char* GetDescription() const { return _description.c_str(); }

    /// Ask this before a line that costs something to make.
    bool IsActive() const { return _mode != 0; }
    void SetMode(int iMode);

    /// Sends what comes from now on to iFile, which stays the caller's; null restores the first output.
    void SetOutput(std::FILE* iFile);

    /// Writes a text; a text and an integer in decimal with nothing between; a text and the end of the line. A
    /// null text is the empty one.
    void TraPut(const char* iText);
    void TraPutX(const char* iText, int iNumber);
    void TraPutLN(const char* iText);

    /// Writes what waits in the buffer.
    void Flush();

private:
    void Write(const char* iText);
    std::FILE* Output();

    std::string _name;
    std::string _description;
    int _mode;
    std::string _outputName;
    std::size_t _bufferSize;
    std::string _buffer;
    std::FILE* _redirected = nullptr;
    std::FILE* _ownFile = nullptr;
};
