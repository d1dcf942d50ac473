#include "QORPlatform/dom/DOM_Document.h"

#include "QORPlatform/dom/QORDomCall.h"
#include "QORPlatform/dom/QORDomState.h"

#include <xercesc/dom/DOMElement.hpp>

DOM_Document DOM_Document::createDocument() {
    auto* const state = new QORDomState();
    DOM_Document document(state, &state->GetDocument());
    state->Release(); // the handle counts for itself
    return document;
}

DOM_Element DOM_Document::createElement(const DOMString& iTag) {
    if (isNull()) {
        return {};
    }
    return QORDomCall([&]() -> DOM_Element {
        return {State(), State()->GetDocument().createElement(reinterpret_cast<const XMLCh*>(iTag.rawBuffer()))};
    });
}

DOM_Element DOM_Document::getDocumentElement() const {
    return isNull() ? DOM_Element() : DOM_Element(State(), State()->GetDocument().getDocumentElement());
}
