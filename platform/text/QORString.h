#pragma once

#include "QORPlatform/text/QORExport.h"

#include <string>

/// Narrow text: bytes without a meaning of their own, kept until the string goes.
class QOR_EXPORT QORString {
public:
    QORString() = default;

    /// Copies up to the terminating zero; a null pointer gives the empty string.
    QORString(const char* iText) : _text(iText ? iText : "") {}

    /// Length in bytes.
    int GetLength() const { return static_cast<int>(_text.size()); }

    /// Zero-terminated text, valid as long as the string isn't changed.
    operator const char*() const { return _text.c_str(); }

    friend bool operator==(const QORString& iLeft, const QORString& iRight) { return iLeft._text == iRight._text; }
    friend bool operator==(const QORString& iLeft, const char* iRight) { return iLeft == QORString(iRight); }

private:
    std::string _text;
};
