#pragma once

#include "QORPlatform/dom/DOMString.h"
#include "VXMBomInfrastructure/VXMExport.h"

#include <string>

/// Narrow text of a wide text of the document. A copy has a text of its own.
class VXM_EXPORT StrX {
public:
    /// Of a wide text up to its terminating zero, which is only read here. Half a surrogate pair becomes U+FFFD; a null
    /// pointer gives no text.
    explicit StrX(const unsigned short* iWide);
    explicit StrX(const DOMString& iWide);

    /// Zero-terminated UTF-8, valid until this object ends or is assigned to; null for no text.
    const char* localForm() const { return _isText ? _text.c_str() : nullptr; }
    operator const char*() const { return localForm(); }

private:
    std::string _text;
    bool _isText;
};
