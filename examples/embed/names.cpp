// An object with two names: QORISPPItem and VXMIMfgAssembly both have an operation GetName, and a door means another
// name by each. A class that inherited both interfaces could only have one GetName; here each interface has a forwarder
// of its own, and the one that shall answer differently says so.

#include "Line.h"

#include <QORPlatform/dom/DOM_Document.h>
#include <VXMBomInfrastructure/generation/StrX.h>
#include <VXMBomInfrastructure/model/VXMIMfgAssembly.h>
#include <VXMBomInfrastructure/process/VXMProcessBomGenerator.h>

#include <iostream>

namespace {

class Door : public QORBaseUnknown {
public:
    QORStatus QueryInterface(const QORInterfaceID& id, void** found) override {
        return QORAnswer(id, found, item_, assembly_);
    }

    QORUnicodeString GetName() { return "DR-4711"; }
    QORUnicodeString GetAssemblyName() { return "Front door, left"; }
    QORStatus GetAssignedProducts(QORListValQORBaseUnknown_var*&) { return QOR_OK; }

private:
    class AssemblyTie : public VXMIMfgAssemblyTie<Door> {
    public:
        using VXMIMfgAssemblyTie<Door>::VXMIMfgAssemblyTie;
        QORUnicodeString GetName() override { return Target()->GetAssemblyName(); }
    };

    QORISPPItemTie<Door> item_{this};
    AssemblyTie assembly_{this};
};

} // namespace

int main() {
    Door door;
    line::Step hang("Hang the door");
    line::Step check("Check the gaps");
    hang.comingIn = {&door};
    line::Step process("Line");
    process.append(hang);
    process.append(check);

    VXMProcessBomGenerator generator{QORBaseUnknown_var(&process)};
    const DOM_Document bill = generator.GetBom(0);
    const DOM_Element element(bill.getDocumentElement().getFirstChild());
    std::cout << "as an item: " << QORISPPItem_var(&door)->GetName() << '\n'
              << "as an assembly, and in the bill: " << StrX(element.getAttribute("DisplayName")) << '\n';
}
