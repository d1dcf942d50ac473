// What is wrong in a plan, finding by finding; and on random plans against the bill and against slow ways to tell.

#include "PlanDrawing.h"

#include "planner/PlanText.h"
#include "planner/questions/check/Check.h"

#include <gtest/gtest.h>

#include <map>

using namespace planner;
using plandrawing::draw;

namespace {

std::string idsOf(const std::vector<const ModelObject*>& objects) {
    std::string text;
    for (const ModelObject* object : objects) {
        text += (text.empty() ? "" : " ") + object->id();
    }
    return text;
}

/// A finding a line: code, object, what else has a part in it.
std::string textOf(const std::vector<Finding>& findings) {
    std::string text;
    for (const Finding& finding : findings) {
        const std::string more = idsOf(finding.path.empty() ? finding.related : finding.path);
        text += (text.empty() ? "" : " | ") + std::string(ruleOf(finding.code).word) + ' ' + finding.object->id() +
                (more.empty() ? "" : ": " + more);
    }
    return text;
}

std::string check(Plan& plan, const char* root = "R") {
    return textOf(checkPlan(plan, *plan.find(root)));
}

struct Case {
    const char* name;
    const char* plan;
    const char* findings;
};

void PrintTo(const Case& each, std::ostream* stream) {
    *stream << each.name;
}

class Check : public testing::TestWithParam<Case> {};

TEST_P(Check, Finds) {
    EXPECT_EQ(check(*draw(GetParam().plan)), GetParam().findings) << GetParam().plan;
}

const Case kCases[] = {
    {"NothingInAGoodPlan", "S1: +P | S2: =P *w<P | S3: +Q >A[P Q] | S4: +T | S5: -T", ""},
    {"NothingInAnEmptyPlan", "", ""},

    {"LoopOfOne", "S1 | S2 ; S1>S1", "loop-in-links S1: S1"},
    {"LoopBeginsAtItsFirstStep", "S0 | S1 | S2 | S3 | S4 ; S3>S1", "loop-in-links S1: S1 S2 S3"},
    {"EachLoopOnce", "S1 | S2 | S3 | S4 ; S2>S1 S4>S3 S4>S3", "loop-in-links S1: S1 S2 | loop-in-links S3: S3 S4"},
    {"LoopsThatShareASteps", "S1 | S2 | S3 ; S2>S1 S3>S2", "loop-in-links S1: S1 S2 | loop-in-links S2: S2 S3"},
    {"LoopByNesting", "S1 { T1 | T2 } | S2 ; S1>T1", "loop-in-flow S1: S1 S2 | loop-in-flow T1: T1 T2 S1"},
    {"LoopInStructure", "S1: +A[B[A] P(P)] | Z", "loop-in-structure A: A B | loop-in-structure P: P"},

    {"StepWithoutLinks", "S3: +Q, S1: +P | S2", "step-off-flow S3"},
    {"BranchThatEndsElsewhere", "S1 | S2, S3 { T1 { U1 }, T2 } ; S1>S2 S1>S3", "step-off-flow S2 | step-off-flow T1"},
    {"StepInside", "S1 | S2 { T3, T1 | T2 }", "step-off-flow T3"},

    {"ListsInStation", "S1@station { T1@loading: +P =Q | T2: +Q *w | T3: *P =P } | Z",
     "left-out-in-station T2: S1 Q w"},
    {"StationItselfCounts", "S1@station: +P { T1@loading | T2 } | Z", ""},
    {"StationFarAbove", "S1@station { T1 { U1: >P | U2 } | T2 } | Z", "left-out-in-station U1: S1 P"},

    {"RemovalOfNothing", "S1: -P | Z", "removal-without-assignment S1: P"},
    {"RemovalOfAnOutput", "S1: >P | S2: -P", "removal-without-assignment S2: P"},
    {"RemovalOfAPart", "S1: +Q(P) | S2: -P", "removal-without-assignment S2: P"},
    {"SecondRemoval", "S1: +P | S2: -P | S3: -P", "removal-without-assignment S2: P"},
    {"RemovalInStation", "S1: +P | S2@station { T1: -P | T2 }", "left-out-in-station T1: S2 P"},
    {"RemovalTwiceByTwoPaths", "S0: +P | S1: -P | S2 | S4, S3 ; S1>S3 S3>S4", ""},

    {"AssignedTwice", "S1: +P | S2: =P | S3: -P", "stays-though-removed P: S3 S1 S2"},
    {"AssignedOnTwoPaths", "S1: +P | S2 | S4: -P, S3 ; S1>S3 S3>S4", "stays-though-removed P: S4 S1"},
    {"FastenerThatIsRemoved", "S1: +w | S2: -w", "stays-though-removed w: S2 S1"},
    {"HiddenFastenerThatIsRemoved", "S1: +w{Nail} | S2: -w", "unknown-fastener-type w"},

    {"NamedAgain", "S1: +P | S2: -P | S3: +P", "removed-and-named-again P: S2 S3"},
    {"PutOutAgain", "S1: +P | S2: -P | S3: >P", "removed-and-named-again P: S2 S3"},
    {"NamedOnABranchBeside", "S0: +P =P | S1: -P | S4, S2: =P ; S0>S2 S2>S4", "stays-though-removed P: S1 S0 S2"},
    {"NamedInTheSameStep", "S1: +P -P | Z", ""},

    {"UnknownTypes", "S1: *a{spot weld} *b{Spot Weld} *c{} | Z", "unknown-fastener-type a | unknown-fastener-type c"},

    {"PartComesLater", "S1: *w<P | S2: +P", "joined-part-absent w: S1 P"},
    {"PartComesBeside", "S0 | S1: *w<P | S3, S2: +P ; S0>S2 S2>S3", "joined-part-absent w: S1 P"},
    {"PartIsTakenOut", "S1: +P +Q | S2: -P | S3: *w<P<Q", "joined-part-absent w: S3 P"},
    {"PartIsTakenOutOnOneWay", "S0: +P +P | S1: -P | S3: *w<P, S2 ; S0>S2 S2>S3", "stays-though-removed P: S1 S0"},
    {"PartOfAWhole", "S1: +A[B[P] Q(T)] | S2: *w<P<T", ""},
    {"WholeIsTakenOut", "S1: +A[P] | S2: -A | S3: *w<P", "joined-part-absent w: S3 P"},
    {"PartIsOnlyWorkedOn", "S1: =P *w<P | Z", "joined-part-absent w: S1 P"},
    {"PartComesWithTheFastener", "S1: +P *w<P -P | Z", ""},
    {"EachSettingForItself", "S1: *w<P | S2: +P | S3: *w", "joined-part-absent w: S1 P"},

    {"NobodyMentions", "S1: +P .Q .A[B A] | Z", "loop-in-structure A: A | unmentioned-item Q | unmentioned-item A"},
};
INSTANTIATE_TEST_SUITE_P(Plans, Check, testing::ValuesIn(kCases),
                         [](const auto& each) { return std::string(each.param.name); });

constexpr const char* kCell =
    R"({"version": 1, "items": [{"id": "p", "kind": "product"}, {"id": "q", "kind": "product"}],
    "resources": [{"id": "cell", "behaviour": {}, "children": [
      {"id": "a", "behaviour": {"id": "does", "assigned": ["p"], "activities": [{"id": "t", "removed": ["q"]}]}},
      {"id": "b", "behaviour": {"outputs": ["q"]}}, {"id": "c", "behaviour": {}}]}],
    "links": [["does", "b"], ["b", "a"]]})";

TEST(CheckOfWays, NamesTheLastStepWhereNothingLeadsToIt) {
    const auto plan = draw("S1: +P | S2 , S3");
    const std::vector<Finding> findings = checkPlan(*plan, *plan->process());
    EXPECT_EQ(textOf(findings), "step-off-flow S1 | step-off-flow S2 | step-off-flow S3");
    EXPECT_TRUE(findings.front().advice.starts_with("no link leads to \"S3\", which stands last in \"R\":"))
        << findings.front().advice;
}

TEST(CheckOfResources, LooksAtTheRootThatIsAsked) {
    const auto plan = plantext::read(kCell);
    EXPECT_EQ(textOf(checkPlan(*plan, *plan->process())), "loop-in-links a: a b | process-without-steps : cell");
    EXPECT_EQ(check(*plan, "cell"), "loop-in-links a: a b | step-off-flow a | step-off-flow b | step-off-flow c");
}

TEST(CheckOfTheExample, FindsOneOfEach) {
    const auto plan = plantext::read(plantext::contentOf(EXAMPLES "/findings.plan.json"));
    std::map<CheckCode, int> found;
    for (ModelObject* root : {static_cast<ModelObject*>(plan->process()), plan->find("plant")}) {
        std::map<CheckCode, int> here;
        for (const Finding& finding : checkPlan(*plan, *root)) {
            EXPECT_EQ(++here[finding.code], 1) << finding.message;
            found[finding.code] = 1;
        }
    }
    EXPECT_EQ(found.size(), kCheckRules.size());
}

} // namespace
