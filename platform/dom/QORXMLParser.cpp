#include "QORPlatform/dom/QORXMLParser.h"

#include "QORPlatform/dom/QORDomState.h"

void QORXMLParser::Initialize() {
    QORXmlRuntime::Get();
}
