#include "QORPlatform/dom/QORDomWriter.h"

#include "QORPlatform/dom/QORDomCall.h"
#include "QORPlatform/dom/QORDomState.h"

#include <xercesc/dom/DOMElement.hpp>

#include <algorithm>
#include <cstring>

QORDomWriter::QORDomWriter(const DOM_Document& iDocument, const DOMString& iAttribute)
    : _document(iDocument), _attribute(iAttribute) {}

QORDomWriter::Place QORDomWriter::PlaceOf(const DOM_Element& iElement) {
    return iElement._node;
}

QORDomWriter::Place QORDomWriter::Append(Place iParent, const DOMString& iTag, const char* iValue) {
    if (_document.isNull()) {
        return nullptr;
    }
    const XMLCh* const value = Widen(iValue);
    return QORDomCall([&]() -> Place {
        const auto* const tag = reinterpret_cast<const XMLCh*>(iTag.rawBuffer());
        xercesc::DOMElement* const element = _document._state->GetDocument().createElement(tag);
        if (iParent) {
            iParent->appendChild(element);
        }
        element->setAttribute(reinterpret_cast<const XMLCh*>(_attribute.rawBuffer()), value);
        return element;
    });
}

/// Plain ASCII, as most names are, is widened here: it is the same letter for letter.
const XMLCh* QORDomWriter::Widen(const char* iText) {
    const std::size_t length = std::strlen(iText);
    if (std::any_of(iText, iText + length, [](char iByte) { return static_cast<signed char>(iByte) < 0; })) {
        _wide = QORXmlRuntime::Get()->Widen(iText);
    } else {
        _wide.assign(iText, iText + length);
    }
    return _wide.c_str();
}
