// The program from outside: exit status, standard output, standard error.

#include "Program.h"
#include "PlanText.h"

#include <gtest/gtest.h>

#include <array>
#include <sys/stat.h>
#include <unistd.h>

using namespace plantext;

namespace {

constexpr const char* kPlan = R"({"version": 1, "plan": "Plan",
  "items": [{"id": "p", "kind": "product", "name": "P"}, {"id": "q", "kind": "product"},
            {"id": "rivet", "kind": "fastener", "type": "Rivet"},
            {"id": "weld", "kind": "fastener", "type": "Spot Weld", "assigned": false}],
  "process": {"id": "line", "name": "Line", "children": [
    {"id": "a", "first_assigned": ["p", "q"]}, {"id": "b", "removed": ["q"], "items": ["rivet", "weld"]},
    {"id": "node", "kind": "logical"}]},
  "resources": [{"id": "robot", "behaviour": {"id": "does", "outputs": ["q"]}}],
  "links": [["a", "b"]]})";

struct Case {
    const char* name;
    const char* arguments;
    const char* text; ///< expected on standard output where the run is good, else on standard error
};

void PrintTo(const Case& each, std::ostream* stream) {
    *stream << each.name;
}

std::string nameOf(const testing::TestParamInfo<Case>& info) {
    return info.param.name;
}

class GoodRun : public testing::TestWithParam<Case> {};

TEST_P(GoodRun, PrintsAndGivesZero) {
    const Outcome ran = run(GetParam().arguments, kPlan);
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.output, GetParam().text);
    EXPECT_EQ(ran.errors, "");
}

const Case kGood[] = {
    {"Tree", "bom %", "Line\n  rivet (fastener, Rivet)\n  P (product)\nTotal: 2 elements: 1 product, 1 fastener\n"},
    {"StandardInput", "bom --format csv - <%",
     "\xEF\xBB\xBFlevel,tag,name,object\r\n1,BOMFastener,rivet,rivet\r\n1,BOMNode,P,p\r\n"},
    {"RootActivity", "bom % --root a", "a\n  P (product)\n  q (product)\nTotal: 2 elements: 2 products\n"},
    {"RootResource", "bom % --root robot", "robot\n  q (product)\nTotal: 1 element: 1 product\n"},
    {"Legacy", "bom % --legacy --root robot", "robot\n  q (product)\nTotal: 1 element: 1 product\n"},
    {"NoFasteners", "bom % --fasteners none", "Line\n  P (product)\nTotal: 1 element: 1 product\n"},
    {"SomeFasteners", "bom % --fasteners stud,spot-weld --unassigned-fasteners",
     "Line\n  weld (fastener, Spot Weld)\n  P (product)\nTotal: 2 elements: 1 product, 1 fastener\n"},
    {"AtAStep", "bom % --at a", "Line\n  P (product)\n  q (product)\nTotal: 2 elements: 2 products\n"},
    {"AtTheLastStep", "bom % --at Line",
     "Line\n  rivet (fastener, Rivet)\n  P (product)\n"
     "Total: 2 elements: 1 product, 1 fastener\n"},
    {"Explain", "explain % q", R"(q, product: not in the bill

    Relation        Paths  What became of it
  Line / a
    first assigned      1  taken away by the removal in b
  Line / b
    removed             1  takes away the assignment in a
  robot
    put out             0  outside of what the bill is of: in robot
)"},
    {"Kits", "kits % --by step", R"(Line / a
  brings in
    1  P (p)  product
    1  q      product

Line / b
  sets
    1  Rivet
    1  Spot Weld
  takes away
    1  q  product

2 kits: 2 brought in with 0 parts, 2 fasteners, 0 put out. The bill has 2 elements.
2 items don't add up:
  Kits  Bill  Item  Reason
     1     0  q     first assigned in a: taken away by the removal in b
     1     0  weld  fastened in b: hidden: a fastener that isn't assigned
)"},
    {"FmtOfStandardInput", "echo '{\"version\":1}' | fmt -", "{\n  \"version\": 1\n}\n"},
    {"Version", "--version", "planner 1.0.0\n"},
};
INSTANTIATE_TEST_SUITE_P(Program, GoodRun, testing::ValuesIn(kGood), nameOf);

TEST(ProgramCheck, GivesOneForFindingsThatCount) {
    constexpr const char* kLost = R"({"version": 1, "items": [{"id": "p", "kind": "product"}],
  "process": {"id": "line", "children": [{"id": "lost"}, {"id": "a"}, {"id": "b"}]}, "links": [["a", "b"]]})";
    EXPECT_EQ(run("check --fail-on loop-in-links %", kPlan).status, 0) << "the weld that is found doesn't count";
    EXPECT_EQ(run("check - <%", kLost).status, 1);
    EXPECT_EQ(run("check % --fail-on step-off-flow", kLost).status, 1);
    EXPECT_EQ(run("check % --fail-on loop-in-links,joined-part-absent", kLost).status, 0);
    EXPECT_EQ(run("check % --root a --fail-on step-off-flow", kLost).status, 0);
    const Outcome listed = run("check % --format json", kLost);
    EXPECT_NE(listed.output.find(R"("place": {"line": 2, "column": 42})"), std::string::npos) << listed.output;
    EXPECT_EQ(listed.errors, "");
}

TEST(ProgramBom, RefusesWhatMultipliesBeyondItsBound) {
    constexpr const char* kForked = R"({"version": 1,
  "items": [{"id": "p", "kind": "product"}, {"id": "a", "kind": "assembly", "holds": ["p"]}],
  "process": {"id": "line", "children": [{"id": "s", "first_assigned": ["p"]}, {"id": "l", "first_assigned": ["a"]},
    {"id": "r", "removed": ["a"]}, {"id": "j"}]}, "links": [["s", "l"], ["s", "r"], ["l", "j"], ["r", "j"]]})";
    const Outcome refused = run("bom % --max-nodes 3", kForked);
    EXPECT_EQ(refused.status, 2);
    EXPECT_EQ(refused.output, "");
    EXPECT_EQ(refused.errors,
              "planner: steps on many paths would make about 4 nodes, more than 3: items \"p\" at steps \"s\"\n");
    EXPECT_EQ(run("bom % --max-nodes 4", kForked).status, 0);

    std::string deep =
        R"({"version": 1, "process": {"id": "line", "children": [{"id": "s", "first_assigned": ["d0"]}, {"id": "t"}]}, "links": [["s", "t"]], "items": [)";
    for (int level = 0; level < 50; ++level) {
        const std::string below = "\"d" + std::to_string(level + 1) + "\"";
        deep += R"({"id": "d)" + std::to_string(level) + R"(", "kind": "product", "children": [)" + below + ", " +
                below + "]}, ";
    }
    deep += R"({"id": "d50", "kind": "product"}]})";
    const Outcome multiplied = run("bom % --max-nodes 20000000", deep);
    EXPECT_EQ(multiplied.status, 2);
    EXPECT_EQ(multiplied.output, "");
    EXPECT_EQ(multiplied.errors,
              "planner: products bring at least 1099511627775 parts, more than 20000000: the latest is "
              "\"d0\"; its parts stand in several places\n");
}

#ifndef __SANITIZE_ADDRESS__ // which takes all addresses that there are
TEST(ProgramBom, TakesItsBoundFromTheMemoryThatIsFree) {
    std::string steps = R"({"id": "s0", "first_assigned": ["p"]})";
    std::string links;
    for (int section = 1; section <= 22; ++section) {
        const std::string before = "\"s" + std::to_string(section - 1) + "\"";
        const std::string number = std::to_string(section) + "\"";
        steps += R"(, {"id": "l)" + number + R"(, "first_assigned": ["a"]}, {"id": "r)" + number +
                 R"(, "removed": ["a"]}, {"id": "s)" + number + "}";
        for (const char* const side : {"\"l", "\"r"}) {
            links += (links.empty() ? "[" : ", [") + before + ", " + side + number + "], [" + side + number + ", \"s" +
                     number + "]";
        }
    }
    const std::string plan = R"({"version": 1, "items": [{"id": "p", "kind": "product"},
  {"id": "a", "kind": "assembly", "holds": ["p"]}], "process": {"id": "line", "children": [)" +
                             steps + R"(]}, "links": [)" + links + "]}";
    const Outcome refused = runShell("ulimit -v 600000; " PLANNER_PROGRAM " bom %", plan);
    EXPECT_EQ(refused.status, 2);
    const std::string said = "more than ";
    const std::size_t number = refused.errors.find(said);
    ASSERT_NE(number, std::string::npos) << refused.errors;
    EXPECT_LT(std::stoll(refused.errors.substr(number + said.size())), 600000LL * 1024 / 2 / 400);
}
#endif

class BadRun : public testing::TestWithParam<Case> {};

TEST_P(BadRun, SaysWhyAndGivesTwo) {
    const Outcome ran = run(GetParam().arguments, kPlan);
    EXPECT_EQ(ran.status, 2);
    EXPECT_EQ(ran.output, "");
    EXPECT_NE(ran.errors.find(GetParam().text), std::string::npos) << ran.errors;
    EXPECT_EQ(ran.errors.find('\n'), ran.errors.size() - 1) << ran.errors;
}

const Case kBad[] = {
    {"UnknownOption", "bom % --loud", "planner: The following argument was not expected: --loud"},
    {"UnknownCommand", "bim %", "planner: \"bim\" is no command; expected one of bom, "},
    {"NoPlan", "bom", "planner: PLAN is required"},
    {"UnknownFormat", "bom % --format yaml", "planner: --format: yaml not in {tree,xml,json,csv,xlsx}"},
    {"UnknownFastener", "bom % --fasteners Rivet,Weld", "planner: --fasteners names \"Weld\"; expected all, none"},
    {"NoFastenerName", "bom % --fasteners Rivet,", "planner: --fasteners names \"\"; expected"},
    {"UnknownCode", "check % --fail-on loops",
     "planner: --fail-on names \"loops\"; expected loop-in-links, loop-in-flow"},
    {"NoNumberOfNodes", "bom % --max-nodes many",
     "planner: --max-nodes is \"many\"; expected a whole number, 0 or more"},
    {"UnknownRoot", "bom % --root x", "planner: --root names \"x\", which is not in %; expected the id of an activity"},
    {"ItemAsRoot", "bom % --root p", "planner: --root names \"p\", which is an item; expected"},
    {"BehaviourAsRoot", "bom % --root does", "planner: --root names \"does\", which is a behaviour; expected"},
    {"LogicalRoot", "bom % --root node", "planner: --root names \"node\", which is a logical node; expected"},
    {"AtUnknownStep", "bom % --at x", "planner: --at names \"x\", which is not in %; expected the id or the name"},
    {"AtAnItem", "bom % --at p", "planner: --at names \"p\", which is an item; expected"},
    {"AtAStepOffTheFlow", "bom % --at node", "planner: --at names \"node\", which is no step of the flow of \"Line\""},
    {"UnknownItem", "explain % p x",
     "planner: ITEM names \"x\", which is not in %; expected the id or the name of an item"},
    {"StepAsItem", "explain % a", "planner: ITEM names \"a\", which is an activity; expected"},
    {"MissingFile", "bom %.none", "%.none: can't be read: No such file or directory"},
    {"Directory", "bom /", "/: is a directory; expected a plan file"},
    {"EmptyFile", "fmt /dev/null", "/dev/null: is empty; expected a JSON object with the plan"},
    {"FaultyPlan", "echo '{}' | bom -", "standard input:1:1: \"version\" is missing; expected 1"},
    {"FullOutput", "bom % >/dev/full", "planner: standard output can't be written: No space left on device"},
    {"ClosedOutput", "bom % >&-", "planner: standard output can't be written: Bad file descriptor"},
    {"ClosedOutputOfHelp", "--help >&-", "planner: standard output can't be written: Bad file descriptor"},
    {"ClosedInput", "bom - <&-", "standard input: can't be read: Bad file descriptor"},
    {"FullFile", "fmt % -o /dev/full", "planner: /dev/full can't be written: No space left on device"},
    {"NamelessOutput", "fmt % -o ''", "planner: --output: the name of the file is empty; expected a path or -"},
    {"FullTrace", "bom % --trace /dev/full", "planner: the trace can't be written to /dev/full"},
    {"TraceNowhere", "bom % --trace /none/t", "planner: the trace can't be written to /none/t: No such file"},
    {"TraceOverThePlan", "bom % --trace %", "planner: --trace names the plan itself"},
};
INSTANTIATE_TEST_SUITE_P(Program, BadRun, testing::ValuesIn(kBad), nameOf);

class Remark : public testing::TestWithParam<std::array<const char*, 3>> {};

/// Plans of which the bill is no surprise only to who knows the rules: one line says why.
TEST_P(Remark, IsOneLineAndNoError) {
    const auto& [name, process, remark] = GetParam();
    const std::string plan = std::string(R"({"version": 1, "items": [{"id": "p", "kind": "product"},)") +
                             R"({"id": "f", "kind": "fastener", "type": "Bolt"},)" +
                             R"({"id": "g", "kind": "fastener", "type": "Rivet"}], )" + process + "}";
    for (const char* command : {"bom %", "kits %", "explain % p", "diff % %"}) {
        const Outcome ran = run(command, plan);
        EXPECT_EQ(ran.status, 0) << command;
        std::string expected = remark;
        if (!expected.empty() && command[0] == 'd') {
            expected.insert(expected.find(' ') + 1, "%: ");
        }
        EXPECT_EQ(ran.errors, expected) << name << ' ' << command;
    }
}

TEST(BomAt, SaysWhenAStepLiesOffTheFlow) {
    constexpr const char* kLost = R"({"version": 1, "process": {"id": "line", "children": [{"id": "lost"},
  {"id": "s", "kind": "station", "children": [{"id": "a"}]}, {"id": "b"}]}, "links": [["s", "b"]]})";
    EXPECT_EQ(run("bom % --at lost", kLost).errors,
              "planner: --at names \"lost\", which lies on no way to the end of the flow of \"line\"\n");
    for (const char* step : {"s", "b", "line"}) {
        EXPECT_EQ(run(std::string("bom % --at ") + step, kLost).errors, "") << step;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Program, Remark,
    testing::Values(
        std::array{"NothingListed", R"("process": {"id": "r"})", ""},
        std::array{"ResourcesAlone", R"("resources": [{"id": "r"}])",
                   "planner: the bill is empty: the process lists nothing; name a resource with --root, as \"r\"\n"},
        std::array{"LoneStep", R"("process": {"id": "r", "children": [{"id": "a", "first_assigned": ["p"]}]})",
                   "planner: the bill is empty: 1 of 1 steps lies on no path of links to the end of the plan: \"a\"\n"},
        std::array{"LostStepsOfNoAccount",
                   R"("process": {"id": "r", "children": [{"id": "s"}, {"id": "zz"}, {"id": "a", "assigned": ["p"]},)"
                   R"({"id": "y"}]}, "links": [["s", "zz"], ["s", "a"], ["a", "y"]])",
                   "planner: the bill is empty: its steps only work on items or remove them, and none brings one in; "
                   "1 of 4 steps lies on no path of links to the end of the plan: \"zz\"\n"},
        std::array{"LostFastener", R"("process": {"id": "r", "children": [{"id": "a", "items": ["g"]}]})",
                   "planner: the bill is empty: 1 of 1 steps lies on no path of links to the end of the plan: \"a\"\n"},
        std::array{"LostHiddenFastener", R"("process": {"id": "r", "children": [{"id": "a", "items": ["f"]}]})",
                   "planner: the bill is empty: its steps bring in no product, and no fastener that they list is "
                   "shown; 1 of 1 steps lies on no path of links to the end of the plan: \"a\"\n"},
        std::array{"LostAndNothingListed", R"("process": {"id": "r", "children": [{"id": "a"}]})",
                   "planner: the bill is empty: its steps list nothing; 1 of 1 steps lies on no path of links to the "
                   "end of the plan: \"a\"\n"},
        std::array{
            "LostBranch",
            R"("process": {"id": "r", "outputs": ["p"], "children": [{"id": "a"}, {"id": "b"}, {"id": "c"}]},)"
            R"("links": [["a", "b"], ["a", "c"]])",
            "planner: 1 of 3 steps lies on no path of links to the end of the plan and adds nothing to the bill: "
            "\"b\"\n"},
        std::array{"ManyLost",
                   R"("process": {"id": "r", "outputs": ["p"], "children": [{"id": "a"}, {"id": "b"}, {"id": "c"},)"
                   R"({"id": "d"}, {"id": "n", "kind": "logical"}]})",
                   "planner: 4 of 4 steps lie on no path of links to the end of the plan and add nothing to the bill: "
                   "\"a\", \"b\", \"c\" and 1 more\n"},
        std::array{"TakenOutAgain", R"("process": {"id": "r", "first_assigned": ["p"], "removed": ["p"]})",
                   "planner: the bill is empty: whatever comes in is taken out again\n"},
        std::array{"OnlyWorkedOn", R"("process": {"id": "r", "assigned": ["p"]})",
                   "planner: the bill is empty: its steps only work on items or remove them, and none brings one in\n"},
        std::array{"HiddenFastener", R"("process": {"id": "r", "items": ["f"]})",
                   "planner: the bill is empty: its steps bring in no product, and no fastener that they list is "
                   "shown\n"},
        std::array{"InAStation",
                   R"("process": {"id": "r", "kind": "station", "children": [{"id": "a", "outputs": ["p"]},)"
                   R"({"id": "b"}]}, "links": [["a", "b"]])",
                   "planner: the bill is empty: inside a station only what loading steps assign first counts\n"}),
    [](const auto& each) { return std::string(each.param[0]); });

TEST(Trace, GoesToItsFileAndIsOffOtherwise) {
    const std::string file = makeFile("trace", "");
    const Outcome ran = run("bom % --trace " + file, kPlan);
    EXPECT_EQ(ran.status, 0);
    EXPECT_EQ(ran.errors, "");
    EXPECT_NE(contentOf(file).find("--> VXMBomGenerator::CreateMBOM "), std::string::npos);
    const Outcome onErrors = run("bom % --trace -", kPlan);
    EXPECT_EQ(onErrors.output, ran.output);
    EXPECT_NE(onErrors.errors.find("--- TRACE 1 ---"), std::string::npos);
}

TEST(Trace, OfALargePlanIsWarnedOf) {
    const auto thousand = [](const std::string& prefix) {
        std::string steps;
        for (int i = 0; i < 1000; ++i) {
            steps += (i > 0 ? ",{\"id\":\"" : "{\"id\":\"") + prefix + std::to_string(i) + "\"}";
        }
        return steps;
    };
    const Outcome ran = run("bom % --root r --trace /dev/null",
                            R"({"version":1,"resources":[{"id":"r","behaviour":{"id":"b","activities":[)" +
                                thousand("a") + R"(]},"children":[)" + thousand("c") + "]}]}");
    EXPECT_EQ(ran.errors.find("planner: a trace of 2001 steps is long"), 0U) << ran.errors;
}

TEST(Fmt, WritesInPlaceAndStaysAtThat) {
    const std::string file = makeFile("inplace", kPlan);
    EXPECT_EQ(run("fmt " + file + " -o " + file).status, 0);
    const std::string once = contentOf(file);
    EXPECT_EQ(run("fmt " + file).output, once);
    EXPECT_EQ(run("fmt " + file + " -o " + file).status, 0);
    EXPECT_EQ(contentOf(file), once);
}

TEST(Fmt, KeepsOwnerAndPermissions) {
    const std::string file = makeFile("owned", kPlan);
    const bool mayGive = ::geteuid() == 0;
    const uid_t owner = mayGive ? 12 : ::geteuid();
    const gid_t group = mayGive ? 34 : ::getegid();
    ASSERT_EQ(::chown(file.c_str(), owner, group), 0);
    ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
    EXPECT_EQ(run("fmt % -o " + file, kPlan).status, 0);
    struct stat status {};
    ASSERT_EQ(::stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, owner);
    EXPECT_EQ(status.st_gid, group);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
}

TEST(Fmt, LeavesTheFileAloneWhenThePlanIsFaulty) {
    const std::string file = makeFile("alone", "old");
    EXPECT_EQ(run("fmt % -o " + file, "{}").status, 2);
    EXPECT_EQ(contentOf(file), "old");
}

TEST(Interrupted, RunsLeaveTheOldFileAndNothingBeside) {
    const std::string folder = makeFile("interrupted", "") + ".d";
    const Outcome ran =
        runShell("rm -rf " + folder + " && mkdir " + folder + " && cd " + folder +
                     " && echo old > bill && mkfifo trace; " PLANNER_PROGRAM " bom % -o bill --trace trace & "
                     "until ls " +
                     folder +
                     "/bill.* >/dev/null 2>&1; do sleep 0.05; done; kill -TERM $!; wait $!; "
                     "echo $?; cd " +
                     folder + "; ls; cat bill",
                 kPlan);
    EXPECT_EQ(ran.output, "143\nbill\ntrace\nold\n") << ran.errors;
}

TEST(Progress, IsSeenOnATerminalOnlyAndGoes) {
    const std::string slow = "(sleep 1.8; cat %) | ";
    EXPECT_EQ(runShell(slow + PLANNER_PROGRAM " fmt - -o /dev/null", kPlan).errors, "");
    const std::string terminal =
        "python3 -c 'import pty, sys; pty.spawn([\"sh\", \"-c\", sys.argv[1]])' '" + slow + PLANNER_PROGRAM;
    const Outcome seen = runShell(terminal + " fmt - -o /dev/null' </dev/null", kPlan);
    EXPECT_EQ(seen.output.find("\r\033[Kplanner: reading the plan … 1 s"), 0U) << seen.output;
    EXPECT_EQ(seen.output.substr(seen.output.size() - 4), "\r\033[K") << seen.output;
}

TEST(Deep, StructuresPassThroughEveryFormat) {
    std::string items = "{\"id\":\"p0\",\"kind\":\"product\"}";
    for (int i = 1; i <= 60000; ++i) {
        items += ",{\"id\":\"p" + std::to_string(i) + "\",\"kind\":\"product\",\"children\":[\"p" +
                 std::to_string(i - 1) + "\"]}";
    }
    const std::string plan =
        R"({"version":1,"items":[)" + items + R"(],"process":{"id":"r","first_assigned":["p60000"]}})";
    for (const char* format : {"tree", "xml", "json", "csv"}) {
        const Outcome ran = run("bom % --format " + std::string(format), plan);
        EXPECT_EQ(ran.status, 0) << format << ran.errors;
        EXPECT_GT(ran.output.size(), 1000000U) << format;
    }
}

TEST(Examples, HaveBillsAndAreInStandardForm) {
    const struct {
        const char* arguments;
        const char* total;
    } cases[] = {{"door-line.plan.json", "Total: 60 elements: 29 products, 6 assemblies, 25 fasteners\n"},
                 {"removal.plan.json", "Total: 1 element: 1 product\n"},
                 {"reuse.plan.json", "Total: 3 elements: 2 products, 1 fastener\n"},
                 {"structure.plan.json", "Total: 7 elements: 5 products, 2 assemblies\n"},
                 {"robot-cell.plan.json --root cell", "Total: 8 elements: 4 products, 2 assemblies, 2 fasteners\n"}};
    for (const auto& each : cases) {
        const std::string arguments = std::string(EXAMPLES) + '/' + each.arguments;
        const Outcome ran = run("bom " + arguments);
        EXPECT_EQ(ran.errors, "") << arguments;
        EXPECT_EQ(ran.output.substr(ran.output.find("Total")), each.total) << arguments;
        const std::string file = arguments.substr(0, arguments.find(' '));
        EXPECT_EQ(run("fmt " + file).output, contentOf(file));
    }
}

} // namespace
