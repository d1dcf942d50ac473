// Pictures of a flow: what the text for Graphviz says of steps and links, and that a drawing of it comes out.

#include "PlanText.h"
#include "Program.h"

#include <gtest/gtest.h>

using namespace plantext;

namespace {

constexpr const char* kPlan = R"({"version": 1, "items": [{"id": "p", "kind": "product"}],
  "process": {"id": "line", "name": "Line", "children": [
    {"id": "a", "name": "<b>\"A\" & \\N\n</b>", "first_assigned": ["p"]},
    {"id": "lost"}, {"id": "c"}, {"id": "d"},
    {"id": "s", "name": "A station with quite a long name", "kind": "station", "children": [{"id": "in"}]}]},
  "resources": [{"id": "cell", "children": [{"id": "robot", "behaviour": {"id": "does", "activities": [{"id": "weld"}]}},
                                            {"id": "gun", "behaviour": {"id": "feeds"}}]}],
  "links": [["a", "lost"], ["a", "c"], ["c", "d"], ["d", "c"], ["a", "s"], ["does", "feeds"]]})";

struct Case {
    const char* name;
    const char* arguments;
    const char* line; ///< a part of the text
};

class Dot : public testing::TestWithParam<Case> {};

TEST_P(Dot, Says) {
    const Outcome ran = run(std::string("flow % ") + GetParam().arguments, kPlan);
    EXPECT_EQ(ran.status, 0);
    EXPECT_NE(ran.output.find(GetParam().line), std::string::npos) << ran.output;
}

constexpr const char* kPale =
    R"(, style="rounded,filled,dashed", color="#a8b0bc", fillcolor="#ffffff", fontcolor="#7d8694"];)";
const std::string kLost = std::string(R"(n1 [label="lost", tooltip="lost", class="step pale")") + kPale;

const Case kCases[] = {
    {"NamesAsTheyAre", "", R"(n0 [label="<b>\"A\" &amp; \\N\\n</b>", tooltip="a", class="step"];)"},
    {"LongNamesInLines", "", R"(n4 [label="A station with quite a\nlong name", tooltip="s", shape=tab)"},
    {"StepsInTheirFrame", "",
     "  subgraph cluster_4 {\n    n4 [label=\"A station with quite a\\nlong name\", tooltip=\"s\", shape=tab, "
     "class=\"holder\"];\n    n5 [label=\"in\", tooltip=\"in\", class=\"step\"];\n  }\n"},
    {"StepsOnNoWayPale", "", kLost.c_str()},
    {"ArrowsOnTheWay", "", "\n  n0 -> n4;"},
    {"ArrowsOnNoWay", "", "\n  n0 -> n1 [class=\"pale\", "},
    {"ArrowsOfALoop", "", "\n  n3 -> n2 [class=\"loop\", color=\"#c81e1e\""},
    {"TheEnd", "", " -> end;"},
    {"ActivitiesOfABehaviourInItsResource", "--root cell", "  subgraph cluster_0 {\n    n0 [label=\"robot\""},
    {"LinksOfABehaviourAtItsResource", "--root cell", "\n  n0 -> n2"},
};
INSTANTIATE_TEST_SUITE_P(Flow, Dot, testing::ValuesIn(kCases),
                         [](const auto& each) { return std::string(each.param.name); });

TEST(Flow, IsDrawn) {
    const Outcome ran = run("flow % --format svg", kPlan);
    if (ran.errors.find("without Graphviz") != std::string::npos) {
        GTEST_SKIP() << ran.errors;
    }
    EXPECT_EQ(ran.status, 0) << ran.errors;
    const std::string file = makeFile("svg", ran.output);
    const Outcome texts = runShell("python3 -c 'import sys, xml.dom.minidom as x\n"
                                   "print(sorted(t.firstChild.data for t in"
                                   " x.parse(sys.argv[1]).getElementsByTagName(\"text\")))' " +
                                   file);
    EXPECT_EQ(texts.errors, "");
    EXPECT_EQ(texts.output, R"(['<b>"A" & \\N\\n</b>', 'A station with quite a', 'c', 'd', 'in', 'long name', 'lost'])"
                            "\n");
}

TEST(Flow, ThatIsTooLargeIsNotDrawn) {
    std::string steps = "{\"id\":\"s\"}";
    for (int i = 0; i < 2000; ++i) {
        steps += ",{\"id\":\"s" + std::to_string(i) + "\"}";
    }
    const std::string file = makeFile("untouched", "old");
    const Outcome ran =
        run("flow % --format svg -o " + file, R"({"version":1,"process":{"id":"r","children":[)" + steps + "]}}");
    EXPECT_EQ(ran.status, 2);
    EXPECT_NE(ran.errors.find("planner: the flow has 2001 steps and 0 links, and is drawn only up to 2000 steps"),
              std::string::npos)
        << ran.errors;
    EXPECT_EQ(contentOf(file), "old");
}

} // namespace
