// Edits of a plan that stands in an open window, chosen by the bytes of the input. After each one the window's document
// is that of a new generator, and its tree says the same. After all of them the plan's file gives the same bills, with
// and without a trace, and undoing all gives the first file again.

#include "fuzz/Fuzz.h"
#include "library/WindowDesk.h"
#include "planner/PlanText.h"
#include "planner/edit/RandomEdits.h"
#include "support/BomText.h"

#include "QORPlatform/framework/QORObjectCounts.h"

#include <algorithm>

namespace {

/// Reads the input to its end, then gives 0.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : next_(data), end_(data + size) {}

    bool atEnd() const { return next_ == end_; }
    std::size_t below(std::size_t limit) { return atEnd() ? 0 : *next_++ % limit; }

private:
    const std::uint8_t* next_;
    const std::uint8_t* end_;
};

/// The tree as a bill in which nothing marks the fasteners.
std::string billInTree(const editing::Window& window) {
    std::string tree = window.tree(); // "Bom(bill)", or "Bom"
    return tree.size() > 5 ? tree.substr(4, tree.size() - 5) : "";
}

void expectInLine(editing::Desk& desk, const editing::Window& window) {
    const std::string bill = editing::billUnder(*desk.plan().process());
    std::string unmarked = bill;
    std::erase(unmarked, '*');
    fuzz::expectSame("the window's document", testmodel::bomText(window->GetGenerator()->GetBom(0)), bill);
    fuzz::expectSame("the window's tree", billInTree(window), unmarked);
}

void expectGoodFile(editing::Desk& desk) {
    const std::string now = desk.text();
    const auto reread = plantext::read(now);
    fuzz::expectSame("written again", reread ? plantext::written(*reread) : "", now);
    const std::string bills = editing::billsOf(desk.plan());
    fuzz::expectSame("bills of " + now, editing::billsOf(*reread), bills);
    const testmodel::TraceCapture trace; // which goes every path
    fuzz::expectSame("traced bills of " + now, editing::billsOf(desk.plan()), bills);
}

void edit(Bytes bytes) {
    editing::Desk desk(editing::kWorld);
    const std::string first = desk.text();
    const editing::Window window = desk.open(bytes.below(2) == 0 ? 1 : 3); // those with a tree
    editing::RandomEdits edits(desk, [&bytes](std::size_t limit) { return bytes.below(limit); });
    while (!bytes.atEnd()) {
        edits.step();
        expectInLine(desk, window);
    }
    expectGoodFile(desk);
    while (desk.editor().undo()) {
    }
    fuzz::expectSame("all undone", desk.text(), first);
    expectInLine(desk, window);
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    edit({data, std::min<std::size_t>(size, 512)});
    const auto left = QORLivingObjects();
    fuzz::expectSame("left over", left.empty() ? "" : left.begin()->first, "");
    return 0;
}
