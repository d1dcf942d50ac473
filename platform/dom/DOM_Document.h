#pragma once

#include "QORPlatform/dom/DOM_Element.h"

/// Handle on a document. The document ends with the last handle on it or on any of its nodes.
class QOR_EXPORT DOM_Document : public DOM_Node {
public:
    DOM_Document() = default;

    /// A new document without any node.
    static DOM_Document createDocument();

    /// A new element that belongs to this document and stands nowhere in it yet. Raises QORDomError for
    /// a tag that is no XML name.
    DOM_Element createElement(const DOMString& iTag);

    /// The top element, a null handle while there is none.
    DOM_Element getDocumentElement() const;

private:
    using DOM_Node::DOM_Node;
};
