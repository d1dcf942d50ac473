#pragma once

#include "QORPlatform/text/QORExport.h"

#include <string>

/// Wide (UTF-16) text of the document.
class QOR_EXPORT DOMString {
public:
    DOMString() = default;

    /// From narrow text in UTF-8; what is no UTF-8 becomes U+FFFD, a null pointer the empty text.
    DOMString(const char* iText);
    explicit DOMString(std::u16string iWide) : _wide(std::move(iWide)) {}

    /// Zero-terminated wide text, valid as long as this string isn't changed.
    const unsigned short* rawBuffer() const { return reinterpret_cast<const unsigned short*>(_wide.c_str()); }

    /// Length in 16-bit units.
    int length() const { return static_cast<int>(_wide.size()); }

    bool equals(const DOMString& iOther) const { return _wide == iOther._wide; }

private:
    std::u16string _wide;
};
