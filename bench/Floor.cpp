#include "bench/Floor.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMImplementation.hpp>

namespace bench {

namespace {

const char16_t* wide(const DOMString& text) {
    return reinterpret_cast<const char16_t*>(text.rawBuffer());
}

} // namespace

Outline outlineOf(const DOM_Document& document) {
    const DOMString fastener("BOMFastener");
    const DOMString displayName("DisplayName");
    const DOM_Node top = document.getDocumentElement();
    Outline outline;
    int level = 1;
    DOM_Node node = top.getFirstChild();
    while (!node.isNull()) {
        outline.push_back(
            {level, node.getNodeName().equals(fastener), wide(DOM_Element(node).getAttribute(displayName))});
        DOM_Node next = node.getFirstChild();
        level += next.isNull() ? 0 : 1;
        while (next.isNull() && !(node == top)) {
            next = node.getNextSibling();
            if (next.isNull()) {
                node = node.getParentNode();
                --level;
            }
        }
        node = next;
    }
    return outline;
}

void makeAndRelease(const Outline& outline) {
    xercesc::DOMDocument* const document = xercesc::DOMImplementation::getImplementation()->createDocument();
    std::vector<xercesc::DOMNode*> above{document->createElement(u"BOM")};
    document->appendChild(above.front());
    for (const OutlineEntry& entry : outline) {
        xercesc::DOMElement* const element = document->createElement(entry.isFastener ? u"BOMFastener" : u"BOMNode");
        above.resize(static_cast<std::size_t>(entry.level));
        above.back()->appendChild(element);
        element->setAttribute(u"DisplayName", entry.name.c_str());
        above.push_back(element);
    }
    document->release();
}

} // namespace bench
