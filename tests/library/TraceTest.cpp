// What the trace says, to the letter.

#include "library/Bills.h"

#include "VXMBomInfrastructure/nodes/VXMFabProcessFlowNode.h"

using namespace testmodel;

namespace {

/// What is traced while a flow is walked.
std::string walkText(VXMBomGenerator& generator) {
    const TraceCapture trace;
    generator.MainCheckFlow();
    return trace.text();
}

// Pieces of the walk of a nested plan, whose nodes are numbered in this order and bear the same identity numbers.
const char* const kNames[] = {"R", "A1", "A2", "B1", "B2"};

/// What a new node says.
std::string made(int number) {
    const std::string digit = std::to_string(number);
    return "FAB_BOM_NO_FASTENERS is NOT set to TRUE: fasteners are displayed in MBOM\nNumber: " + digit +
           "ID: " + digit + "Name " + kNames[number - 1] + "\n";
}

/// The dump of as many nodes as there are texts of their links.
std::string dump(const std::vector<std::string>& links) {
    std::string names;
    std::string lines = "Flow: Node Number (N), Predecessor (P) und Successors (S)\n";
    for (std::size_t index = 0; index < links.size(); ++index) {
        const std::string digit = std::to_string(index + 1);
        names += "Number: " + digit + " Name: " + kNames[index] + "\n";
        lines += "N: " + digit + links[index] + " *\n";
    }
    return names + lines;
}

TEST(Trace, IsSilentUntilItIsSwitchedOn) {
    World world;
    VXMProcessBomGenerator generator(handle(drawPlan(world, "S1: +P | S2")));
    testing::internal::CaptureStderr();
    generator.GetBom(1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(Trace, WalkOfANestedPlan) {
    World world;
    VXMProcessBomGenerator generator(handle(drawPlan(world, "A1 | A2 { B1 | B2 }")));
    std::string expected = made(1) + dump({""}) + "Name: A1\nType: Activity\n";
    expected += made(2) + dump({"", ""}) + dump({"", ""}) + dump({"", ""}) + "Name: A2\n";
    expected += made(3) + dump({"", "", ""}) + "Name: B1\nType: Activity\n";
    expected += made(4) + dump({"", "", "", ""}) + dump({"", "", "", ""}) + "Predecessor: A1\nSuccessor: B1\n";
    expected += dump({"", " S  4", "", " P  2"}) + "Name: B2\n";
    expected += made(5) + dump({"", " S  4", "", " P  2", ""}) + dump({"", " S  4", "", " P  2", ""});
    expected += "Predecessor: B1\nSuccessor: B2\n";
    expected += dump({"", " S  4", "", " P  2 S  5", " P  4"}) + "Name: B2\nType: Activity\n";
    expected += dump({"", " S  4", "", " P  2 S  5", " P  4"}) + "Predecessor: B2\nSuccessor: A2\n";
    expected += dump({"", " S  4", " P  5", " P  2 S  5", " P  4 S  3"}) + "Name: A2\nType: Activity\n";
    expected += dump({"", " S  4", " P  5", " P  2 S  5", " P  4 S  3"}) + "Predecessor: A2\nSuccessor: R\n";
    expected += dump({" P  3", " S  4", " P  5 S  1", " P  2 S  5", " P  4 S  3"});
    expected += dump({" P  3", " S  4", " P  5 S  1", " P  2 S  5", " P  4 S  3"});
    expected += "Number 1P1: 3 *\nNumber 2S1: 4 *\nNumber 3P1: 5S1: 1 *\nNumber 4P1: 2S1: 5 *\nNumber 5P1: 4S1: 3 *\n";
    EXPECT_EQ(walkText(generator), expected);
}

TEST(Trace, ANullFlowNodeIsMarkedAllTheSame) {
    VXMProcessBomGenerator generator(nullptr);
    const TraceCapture trace;
    generator.CreateMBOM(nullptr, nullptr, 1);
    generator.CreateOldMBOM(nullptr, nullptr, 1);
    EXPECT_EQ(trace.text(), "--> VXMBomGenerator::CreateMBOM \n--> VXMBomGenerator::CreateOldMBOM \n");
}

TEST(Trace, ARegisteredNullNodeIsPassedOver) {
    World world;
    VXMResourceBomGenerator generator(handle(drawResource(world, "R@resource ( C1@resource | C2@resource )")));
    World::link(world["C1"], world.thing("X", kItem));
    const std::string text = walkText(generator);
    EXPECT_TRUE(text.ends_with("Number 1P1: 2 *\nNumber 2S1: 3S2: 1 *\nNumber 3P1: 2 *\n")) << text;
}

TEST(Trace, FastenersAreWrittenBeforeTheyAreFiltered) {
    World world;
    drawPlan(world, "A: *w? *v{Nail} *x");
    world["x"].answers = kFastener;
    const TraceCapture trace;
    const VXMFabProcessFlowNode node(QORISPPAbstractActivity_var(handle(world["A"])), 0, 4, 4095, 1);
    const VXMFabProcessFlowNode silent(QORISPPAbstractActivity_var(handle(world["A"])), 0, 5, 0, 1);
    EXPECT_EQ(trace.text(), R"(FAB_BOM_NO_FASTENERS is NOT set to TRUE: fasteners are displayed in MBOM
processType of weld: 
Rivet
processType of weld: 
Nail
Number: 4ID: 2Name A
Number: 5ID: 2Name A
)");
}

} // namespace
