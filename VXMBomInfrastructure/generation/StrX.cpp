#include "generation/StrX.h"

#include "dom/XMLString.h"

StrX::StrX(const unsigned short* iWide) : _text(XMLString::transcode(iWide)) {}

StrX::StrX(const DOMString& iWide) : StrX(iWide.rawBuffer()) {}

StrX::~StrX() {
    XMLString::release(&_text);
}
