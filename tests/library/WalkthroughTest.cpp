// The page that follows one plan to its bill: its drawings are what the library makes of the first of them.

#include "library/Bills.h"

#include <fstream>
#include <map>
#include <sstream>

using namespace testmodel;

namespace {

/// The fenced blocks of the page by the word behind their fence, each on one line.
std::map<std::string, std::string> blocksOf(const char* page) {
    std::map<std::string, std::string> blocks;
    std::ifstream file(page);
    std::string line;
    std::string* open = nullptr;
    while (std::getline(file, line)) {
        if (line.rfind("```", 0) == 0) {
            open = open ? nullptr : &blocks[line.substr(3)];
        } else if (open) {
            std::istringstream words(line);
            for (std::string word; words >> word;) {
                *open += (open->empty() ? "" : " ") + word;
            }
        }
    }
    return blocks;
}

/// A tree of MBOM nodes as a drawing has them: the sign of the list that a node comes from, its name, what is below it.
std::string drawingOf(VXMFabMBOMNode& parent) {
    std::string text;
    for (int position = 1; position <= parent.GetNumberOfSuccessors(); ++position) {
        VXMFabMBOMNode& child = *parent.GetSuccessor(position);
        const std::string below = drawingOf(child);
        text += position == 1 ? "" : " ";
        text += "?+=->*"[child.GetAT()] + std::string(child.GetName()) + (below.empty() ? "" : "(" + below + ")");
    }
    return text;
}

TEST(Walkthrough, ShowsWhatTheLibraryMakes) {
    std::map<std::string, std::string> page = blocksOf(WALKTHROUGH);
    World world;
    Thing& root = drawPlan(world, page["plan"]);

    VXMProcessBomGenerator generator(handle(root));
    generator.MainCheckFlow();
    EXPECT_EQ(graphText(generator, world), page["graph"]);

    auto* const top = new VXMFabMBOMNode(QORBaseUnknown_var(), 0, 0, VXMFabMBOMNode::AT_Top, 1);
    generator.AddMBOMNodeToList(top);
    generator.SetTopNode(top);
    generator.CreateMBOM(generator.GetLastNodeInFlow(generator.CheckUse(handle(root))), top, 1);
    EXPECT_EQ(drawingOf(*top), page["raw"]);
    generator.CleanMBOM_RemoveAssignments();
    EXPECT_EQ(drawingOf(*top), page["removals"]);
    generator.CleanMBOM_ProcessAssignments();
    EXPECT_EQ(drawingOf(*top), page["assignments"]);
    QORHashDico met(10);
    generator.CleanMBOM_3(top, met);
    EXPECT_EQ(drawingOf(*top), page["repeats"]);

    EXPECT_EQ(bomText(VXMProcessBomGenerator(handle(root)).GetBom(0)), page["bill"]);
    EXPECT_EQ(bomText(makeGenerator(root, Root::Process, Algorithm::Legacy)->GetBom(0)), page["legacy"]);
}

} // namespace
