#include "QORPlatform/dom/XMLString.h"

#include "QORPlatform/dom/QORDomState.h"

#include <xercesc/util/XMLString.hpp>

char* XMLString::transcode(const unsigned short* iWide) {
    return iWide ? QORXmlRuntime::Get()->Narrow(reinterpret_cast<const XMLCh*>(iWide)) : nullptr;
}

void XMLString::release(char** ioText) {
    if (ioText && *ioText) {
        xercesc::XMLString::release(ioText);
    }
}
