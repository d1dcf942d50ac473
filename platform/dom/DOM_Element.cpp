#include "QORPlatform/dom/DOM_Element.h"

#include "QORPlatform/dom/QORDomCall.h"

#include <xercesc/dom/DOMElement.hpp>

namespace {

const XMLCh* Wide(const DOMString& iText) {
    return reinterpret_cast<const XMLCh*>(iText.rawBuffer());
}

} // namespace

DOM_Element::DOM_Element(const DOM_Node& iNode)
    : DOM_Node(iNode._state, iNode.getNodeType() == ELEMENT_NODE ? iNode._node : nullptr) {}

void DOM_Element::setAttribute(const DOMString& iName, const DOMString& iValue) {
    if (auto* const element = static_cast<xercesc::DOMElement*>(Node())) {
        QORDomCall([&] { element->setAttribute(Wide(iName), Wide(iValue)); });
    }
}

DOMString DOM_Element::getAttribute(const DOMString& iName) const {
    const auto* const element = static_cast<const xercesc::DOMElement*>(Node());
    return element ? DOMString(std::u16string(element->getAttribute(Wide(iName)))) : DOMString();
}
