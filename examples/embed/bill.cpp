// The library over a model of one's own: a line of two steps, and the bill that comes of it.

#include "Line.h"

#include <QORPlatform/dom/DOM_Document.h>
#include <VXMBomInfrastructure/generation/StrX.h>
#include <VXMBomInfrastructure/process/VXMProcessBomGenerator.h>

#include <iostream>
#include <string>

namespace {

void print(const DOM_Node& element, int depth) {
    for (DOM_Node child = element.getFirstChild(); !child.isNull(); child = child.getNextSibling()) {
        std::cout << std::string(2 * depth, ' ') << StrX(DOM_Element(child).getAttribute("DisplayName")) << '\n';
        print(child, depth + 1);
    }
}

} // namespace

int main() {
    line::Part panel("Outer panel");
    line::Part hinge("Hinge");
    line::Part jig("Welding jig");
    line::Step load("Load");
    line::Step weld("Weld");
    load.comingIn = {&panel, &jig};
    weld.comingIn = {&hinge};
    weld.takenOut = {&jig};
    line::Step process("Door line");
    process.append(load);
    process.append(weld);

    VXMProcessBomGenerator generator{QORBaseUnknown_var(&process)};
    const DOM_Document bill = generator.GetBom(0);
    print(bill.getDocumentElement(), 0);
}
