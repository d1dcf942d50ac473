#pragma once

#include "QORPlatform/dom/DOM_Document.h"

/// Appends elements to a document, each with the same attribute, at less cost than handles: a place counts nothing,
/// names are made once, and each text is converted once.
class QOR_EXPORT QORDomWriter {
public:
    /// An element to append to, null for none. Valid as long as its document.
    using Place = xercesc::DOMNode*;

    /// Writes to iDocument, which it keeps; to none when that is null. The attribute has that name on all elements.
    QORDomWriter(const DOM_Document& iDocument, const DOMString& iAttribute);

    static Place PlaceOf(const DOM_Element& iElement);

    /// Appends an element with that value, which is UTF-8 up to its terminating zero, and gives its place. Below no
    /// place the element is made and stands nowhere. Raises as DOM_Node does.
    Place Append(Place iParent, const DOMString& iTag, const char* iValue);

private:
    const XMLCh* Widen(const char* iText);

    DOM_Document _document;
    DOMString _attribute;
    std::u16string _wide; // of the latest value
};
