#include "VXMBomInfrastructure/generation/StrX.h"

#include "QORPlatform/dom/XMLString.h"

StrX::StrX(const unsigned short* iWide) : _text(XMLString::transcode(iWide)) {}

StrX::StrX(const DOMString& iWide) : StrX(iWide.rawBuffer()) {}

StrX::~StrX() {
    XMLString::release(&_text);
}
