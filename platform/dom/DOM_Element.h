#pragma once

#include "QORPlatform/dom/DOM_Node.h"

/// Handle on an element.
class QOR_EXPORT DOM_Element : public DOM_Node {
public:
    DOM_Element() = default;

    /// The element that iNode is; a null handle when it is no element.
    explicit DOM_Element(const DOM_Node& iNode);

    /// Sets the attribute's value. Raises QORDomError for a name that is no XML name.
    void setAttribute(const DOMString& iName, const DOMString& iValue);

    /// Value of the attribute, empty when there is none.
    DOMString getAttribute(const DOMString& iName) const;

private:
    friend class DOM_Document;
    using DOM_Node::DOM_Node;
};
