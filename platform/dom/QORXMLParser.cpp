#include "dom/QORXMLParser.h"

#include "dom/QORDomState.h"

void QORXMLParser::Initialize() {
    QORXmlRuntime::Get();
}
