// Module that UnloadTest loads: it brings the library along, computes a bill with it and reads it through tree objects.

#include "library/Bills.h"

#include "VXMBomInfrastructure/navigation/VXMBomNavObject.h"

namespace {

std::string labelsOf(VXMBomNavObject& object) {
    const std::unique_ptr<QORListValQORUnicodeString> labels(object.GetIdentificators());
    const std::unique_ptr<QORListValQORBaseUnknown_var> children(object.GetChildren());
    std::string text = static_cast<const char*>((*labels)[1]);
    for (const QORBaseUnknown_var& child : *children) {
        text += " " + labelsOf(dynamic_cast<VXMBomNavObject&>(*child.Impl()));
    }
    return text;
}

} // namespace

extern "C" __attribute__((visibility("default"))) const char* computeBill() {
    static std::string bill;
    testmodel::World world;
    testmodel::Thing& root = testmodel::drawPlan(world, "S1: +P *w | S2: -P >A(Q)");
    VXMProcessBomGenerator generator(testmodel::handle(root));
    DOM_Element element = generator.GetBom(0).getDocumentElement();
    const auto object = QORVar<VXMBomNavObject>::Adopt(new VXMBomNavObject(element));
    bill = labelsOf(*object.Get());
    return bill.c_str();
}
