#include "VXMBomInfrastructure/generation/StrX.h"

#include "QORPlatform/dom/XMLString.h"

StrX::StrX(const unsigned short* iWide) : _isText(iWide != nullptr) {
    if (_isText) {
        char* narrow = XMLString::transcode(iWide);
        _text = narrow;
        XMLString::release(&narrow);
    }
}

StrX::StrX(const DOMString& iWide) : StrX(iWide.rawBuffer()) {}
