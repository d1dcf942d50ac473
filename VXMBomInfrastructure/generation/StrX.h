#pragma once

#include "QORPlatform/dom/DOMString.h"
#include "VXMBomInfrastructure/VXMExport.h"

/// Narrow text of a wide text of the document, owned for as long as this object lives.
class VXM_EXPORT StrX {
public:
    /// A null pointer gives no text.
    explicit StrX(const unsigned short* iWide);
    explicit StrX(const DOMString& iWide);
    ~StrX();
    StrX(const StrX&) = delete;
    StrX& operator=(const StrX&) = delete;

    /// UTF-8, zero-terminated.
    const char* localForm() const { return _text; }
    operator const char*() const { return _text; }

private:
    char* _text;
};
