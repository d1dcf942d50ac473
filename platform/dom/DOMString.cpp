#include "QORPlatform/dom/DOMString.h"

#include "QORPlatform/dom/QORDomState.h"

DOMString::DOMString(const char* iText) : _wide(iText ? QORXmlRuntime::Get()->Widen(iText) : std::u16string()) {}
