#include "planner/bill/Bill.h"

#include "QORPlatform/dom/XMLString.h"

namespace planner {

namespace {

std::string narrow(const DOMString& wide) {
    char* text = XMLString::transcode(wide.rawBuffer());
    std::string result(text ? text : "");
    XMLString::release(&text);
    return result;
}

} // namespace

Bill readBill(const DOM_Document& document, const QORListValQORBaseUnknown_var& objects) {
    const DOMString nameKey("DisplayName");
    Bill bill;
    std::vector<std::size_t> open; // elements of the bill whose descendants are being read
    int objectPosition = 0;
    const DOM_Node top = document.getDocumentElement();
    DOM_Node node = top.getFirstChild();
    while (!node.isNull()) {
        open.push_back(bill.size());
        bill.push_back({static_cast<int>(open.size()), narrow(node.getNodeName()),
                        narrow(DOM_Element(node).getAttribute(nameKey)), nullptr});
        DOM_Node next = node.getFirstChild();
        while (next.isNull() && !open.empty()) {
            bill[open.back()].object = ModelObject::behind(objects[++objectPosition]);
            open.pop_back();
            next = node.getNextSibling();
            if (next.isNull()) {
                node = node.getParentNode();
            }
        }
        node = next;
    }
    return bill;
}

} // namespace planner
