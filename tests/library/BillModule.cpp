// Module that UnloadTest loads: it brings the library along and computes a bill with it.

#include "library/Bills.h"

extern "C" __attribute__((visibility("default"))) const char* computeBill() {
    static std::string bill;
    testmodel::World world;
    testmodel::Thing& root = testmodel::drawPlan(world, "S1: +P *w | S2: -P >A(Q)");
    VXMProcessBomGenerator generator(testmodel::handle(root));
    bill = testmodel::bomText(generator.GetBom(0));
    return bill.c_str();
}
