// What is different in two bills, and which edits stand behind it.

#include "PlanDrawing.h"
#include "RandomDrawing.h"

#include "planner/PlanText.h"
#include "planner/Program.h"
#include "planner/questions/SchemaCheck.h"
#include "planner/questions/diff/DiffFormats.h"

#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"

#include <gtest/gtest.h>

#include <random>

using namespace planner;
using plantext::Outcome;
using plantext::run;
using plantext::runShell;

namespace {

/// A plan with its bill.
struct Billed {
    explicit Billed(const std::string& drawing) : plan(plandrawing::draw(drawing)) {
        generator = VXMMakeBomGenerator(plan->process());
        const DOM_Document document = generator->GetBom(0);
        bill = readBill(document, generator->GetPreviewObjects());
    }
    BilledPlan get() { return {*plan, *plan->process(), *generator, bill}; }

    std::unique_ptr<Plan> plan;
    std::unique_ptr<VXMBomGenerator> generator;
    Bill bill;
};

std::vector<BillChange> diff(Billed& before, Billed& after) {
    return diffBills(before.get(), after.get());
}

std::string idOf(const ModelObject* object) {
    return object ? object->id() : "top";
}

std::string editText(const PlanEdit& edit) {
    const std::string word(kPlanEditWords[static_cast<std::size_t>(edit.kind)]);
    const bool isOfList = word.starts_with("list-");
    return word + ' ' + idOf(edit.object) + (isOfList ? '.' + std::string(relationText(edit.relation)) : "") +
           (edit.other ? ' ' + idOf(edit.other) : "");
}

/// "added P/A*2 (edit; edit) | …": object, what it stood or stands below, how many elements, edits.
std::string textOf(const std::vector<BillChange>& changes) {
    std::string text;
    for (const BillChange& change : changes) {
        const bool isMoved = change.kind == BillChange::Kind::Moved;
        text += (text.empty() ? "" : " | ") + std::string(kBillChangeWords[static_cast<std::size_t>(change.kind)]) +
                ' ' + idOf(change.after ? change.after : change.before) + '/' +
                idOf(change.after ? change.parentAfter : change.parentBefore) +
                (isMoved ? "<" + idOf(change.parentBefore) : "") +
                (change.elements > 1 ? '*' + std::to_string(change.elements) : "") + " (";
        for (const PlanEdit& edit : change.edits) {
            text += (&edit == &change.edits.front() ? "" : "; ") + editText(edit);
        }
        text += change.hasMoreEdits ? "; …)" : ")";
    }
    return text;
}

struct Case {
    const char* name;
    const char* before;
    const char* after;
    const char* changes;
};

void PrintTo(const Case& each, std::ostream* stream) {
    *stream << each.name;
}

class Diff : public testing::TestWithParam<Case> {};

TEST_P(Diff, Tells) {
    Billed before(GetParam().before);
    Billed after(GetParam().after);
    EXPECT_EQ(textOf(diff(before, after)), GetParam().changes);
}

const Case kCases[] = {
    {"Nothing", "S1: +P | S2 { T1: +A[P] | T2 }", "S1: +P | S2 { T1: +A[P] | T2 }", ""},
    {"EditsWithoutEffect", "S1: +P | S2", "S1: +P | S2: =P | S3", ""},
    {"ItemComesIn", "S1 | S2", "S1: +P(Q) | S2",
     "added P/top*2 (added P; list-gains P.children Q; list-gains S1.first_assigned P)"},
    {"StepIsNew", "S1: +P | S2", "S1: +P | S3: +Q | S2",
     "added Q/top (added Q; list-gains S3.first_assigned Q; added S3 R)"},
    {"StepIsGone", "S1: +P | S3: +Q | S2", "S1: +P | S2 : .Q",
     "gone Q/top (list-loses S3.first_assigned Q; gone S3 R)"},
    {"ItemIsRemoved", "S1: +P | S2", "S1: +P | S2: -P", "gone P/top (list-gains S2.removed P)"},
    {"LinkIsGoneFarBehind", "S2: +P | S3 | S4, S1: +T | Z ; S4>Z", "S2: +P | S3 | S4, S1: +T | Z",
     "gone P/top (link-gone S4 Z)"},
    {"StepGoesIntoAStation", "S1@station { T1 | T2 } | S3: +P | S4", "S1@station { T1 | T2 | S3: +P } | S4",
     "gone P/top (moved S3 S1)"},
    {"ContainerBecomesAStation", "S1 { T1: +P | T2 } | S2", "S1@station { T1: +P | T2 } | S2",
     "gone P/top (altered S1)"},
    {"MovedIntoAnAssembly", "S1: +A[Q] +P | S2", "S1: +A[Q P] +P | S2", "moved P/A<top (list-gains A.holds P)"},
    {"MovedIntoWhatIsNew", "S1: +P +Q | S2", "S1: +P +Q | S2: >A[B[P] Q]",
     "added A/top*2 (added A; list-gains A.holds B; list-gains A.holds Q; list-gains S2.outputs A) | "
     "moved P/B<top (list-gains B.holds P; list-gains A.holds B; added B; added A; list-gains S2.outputs A) | "
     "moved Q/A<top (list-gains A.holds Q; added A; list-gains S2.outputs A)"},
    {"TwoPartsOfOneWhole", "S1: +A[P] | S2", "S1: +A[Q] | S2",
     "added Q/A (list-gains A.holds Q; added Q) | gone P/A (list-loses A.holds P; gone P)"},
    {"MovedOutOfWhatIsGone", "S1: +A[P(Q)] | S2", "S1: +P(Q) .A[] | S2",
     "gone A/top (list-loses A.holds P; list-loses S1.first_assigned A) | "
     "moved P/top<A (list-loses A.holds P; list-gains S1.first_assigned P; list-loses S1.first_assigned A)"},
    {"MovedWithAChangeBelow", "S1: +P(Q) +A[B] | S2", "S1: +A[B P(Q T)] | S2",
     "added T/P (list-gains P.children T; added T; list-gains A.holds P; list-loses S1.first_assigned P) | "
     "moved P/A<top (list-gains A.holds P; list-gains P.children T; list-loses S1.first_assigned P)"},
    {"FastenerOfAnotherType", "S1: *w | S2", "S1: *w{Stud} | S2", "altered w/top (altered w)"},
    {"FastenerIsHidden", "S1: *w | S2", "S1: *w{Nail} | S2", "gone w/top (altered w)"},
    {"OtherOrder", "S1: +P | S2: +Q", "S2: +Q | S1: +P", "reordered top/top (reordered R)"},
    {"OtherOrderOfAList", "S1: +P +Q *w | S2", "S1: +Q +P *w{Stud} | S2",
     "altered w/top (altered w) | reordered top/top (list-reordered S1.first_assigned)"},
    {"OtherOrderInAStructure", "S1: +A[P Q] | S2", "S1: +A[Q P T] | S2",
     "added T/A (list-gains A.holds T; added T) | reordered A/top (list-reordered A.holds; list-gains A.holds T; added "
     "T)"},
    {"OtherOrderOfLinks", "S0, S1: +P, S2: +Q, Z ; S0>S1 S0>S2 S1>Z S2>Z",
     "S0, S1: +P, S2: +Q, Z ; S0>S2 S0>S1 S1>Z S2>Z", "reordered top/top (links-reordered S0 S2)"},
    {"RepeatsInAStructure", "S1: +A[P P Q] | S2", "S1: +A[P Q] | S2", "gone P/A (list-loses A.holds P)"},
};
INSTANTIATE_TEST_SUITE_P(Plans, Diff, testing::ValuesIn(kCases),
                         [](const auto& each) { return std::string(each.param.name); });

TEST(DiffOfNames, IsToldOnceForEachObject) {
    Billed before("S1: +A[P P] +B(P) | S2");
    Billed after("S1: +A[P P] +B(P) | S2");
    const_cast<ModelObject*>(after.plan->find("P"))->setName("Pin");
    const DOM_Document document = after.generator->GetBom(1);
    after.bill = readBill(document, after.generator->GetPreviewObjects());
    EXPECT_EQ(textOf(diff(before, after)), "renamed P/A ()");
}

/// A drawing with one thing in it changed.
std::string edited(std::string drawing, unsigned seed) {
    std::mt19937 random(seed);
    const auto anyOf = [&](const char* letters) {
        std::vector<std::size_t> places;
        for (std::size_t at = drawing.find_first_of(letters); at != std::string::npos;
             at = drawing.find_first_of(letters, at + 1)) {
            places.push_back(at);
        }
        return places.empty() ? 0 : places[random() % places.size()];
    };
    const auto choice = random() % 3;
    if (choice == 0) {
        drawing[anyOf("|")] = ',';
    } else if (choice == 1) {
        drawing[anyOf("+=-*")] = "+=-"[random() % 3];
    } else if (const std::size_t link = drawing.find(" S", drawing.find(';')); link != std::string::npos) {
        drawing.erase(link, 6);
    }
    return drawing;
}

TEST(DiffOfRandomPlans, AddsUpAndKnowsWhy) {
    std::size_t changed = 0;
    std::size_t unexplained = 0;
    for (unsigned seed = 0; seed < 400; ++seed) {
        const std::string drawing = plandrawing::RandomDrawing(seed).make();
        const std::string other = edited(drawing, seed);
        Billed before(drawing);
        Billed after(other);
        std::size_t size = before.bill.size();
        const std::vector<BillChange> changes = diff(before, after);
        std::size_t gone = 0;
        for (const BillChange& change : changes) {
            size += change.kind == BillChange::Kind::Added ? change.elements : 0;
            size -= change.kind == BillChange::Kind::Gone ? change.elements : 0;
            gone += change.kind == BillChange::Kind::Gone ? change.elements : 0;
            unexplained += change.edits.empty() ? 1 : 0;
        }
        EXPECT_EQ(size, after.bill.size()) << drawing << '\n' << other;
        changed += changes.size();
        EXPECT_EQ(diff(after, after).size(), 0U);
        std::size_t back = 0;
        for (const BillChange& change : diff(after, before)) {
            back += change.kind == BillChange::Kind::Added ? change.elements : 0;
        }
        EXPECT_EQ(gone, back) << drawing << '\n' << other;
        bool isEqual = before.bill.size() == after.bill.size();
        for (std::size_t i = 0; isEqual && i < before.bill.size(); ++i) {
            isEqual = before.bill[i].level == after.bill[i].level && before.bill[i].tag == after.bill[i].tag &&
                      before.bill[i].object->id() == after.bill[i].object->id();
        }
        EXPECT_EQ(changes.empty(), isEqual) << drawing << '\n' << other << '\n' << textOf(changes);
    }
    EXPECT_GT(changed, 200U);
    EXPECT_EQ(unexplained, 0U) << "of " << changed;
}

constexpr const char* kNone = R"({"version": 1})";

TEST(DiffProgram, GivesOneForDifferentBills) {
    const std::string old = EXAMPLES "/door-line.plan.json";
    EXPECT_EQ(run("diff " + old + ' ' + old).output, "Front left door line: the bills are equal\n");
    EXPECT_EQ(run("diff " + old + " - <" + old).status, 0);
    EXPECT_EQ(run("diff " + old + " %", kNone).status, 1);
    EXPECT_EQ(run("diff /dev/null " + old + " --root st10").status, 1);
    const Outcome none = run("diff /dev/null /dev/null");
    EXPECT_EQ(none.status, 0);
    EXPECT_NE(none.output.find(": both bills are empty\n"), std::string::npos) << none.output;
    const Outcome twice = run("diff - - <" + old);
    EXPECT_EQ(twice.status, 2);
    EXPECT_EQ(twice.errors.find("planner: OLD and NEW are both -; expected"), 0U) << twice.errors;
    const Outcome noRoot = run("diff % % --root nix", kNone);
    EXPECT_EQ(noRoot.status, 2);
    EXPECT_EQ(noRoot.errors.find('\n'), noRoot.errors.size() - 1) << noRoot.errors;
    const Outcome lost = run("diff --root st10 " + old + " %", kNone);
    EXPECT_EQ(lost.status, 2);
    EXPECT_NE(lost.errors.find("--root names \"st10\", which is not in %"), std::string::npos) << lost.errors;
    EXPECT_EQ(run("diff " + old + " %", "{").status, 2);
}

TEST(DiffProgram, FindsTheThreeChangesOfEachExample) {
    const Outcome door = run("diff " EXAMPLES "/door-line.plan.json " EXAMPLES "/door-line-2.plan.json");
    EXPECT_EQ(door.output.substr(0, door.output.find('\n')), "Front left door line: 3 changes");
    const Outcome cell = run("diff " EXAMPLES "/robot-cell.plan.json " EXAMPLES "/robot-cell-2.plan.json --root cell");
    EXPECT_EQ(cell.output, R"(Bracket welding cell: 3 changes

Added
  + Rib (rib)  below Bracket (bracket)
      product Rib (rib) is new
      Bracket (bracket): holds + Rib (rib)
      behaviour of Handling robot (handling-robot): assigned + Rib (rib)
  + Clamp set (clamp-set)  at the top
      link - Tack gusset and bushing (tack) → Weld all round (weld)
      link + Tack gusset and bushing (tack) → Open clamps (release)
      link - Weld all round (weld) → Open clamps (release)

Renamed
  ~ Flanged bushing (bushing)  was called Bushing
)");
}

TEST(DiffProgram, TellsWhatWasAlteredAndTheLinkThatEndsTheFlowElsewhere) {
    std::string text = plantext::contentOf(EXAMPLES "/door-line.plan.json");
    for (const auto& [from, to] : {std::pair(R"(["outer-prep", "st30"],)", ""),
                                   std::pair(R"("kind": "fastener", "type": "Spot Weld")",
                                             R"("kind": "fastener", "assigned": false, "type": "Screw")")}) {
        const std::size_t at = text.find(from);
        ASSERT_NE(at, std::string::npos);
        text.replace(at, std::string(from).size(), to);
    }
    const std::string told = run("diff " EXAMPLES "/door-line.plan.json %", text).output;
    EXPECT_NE(told.find(R"(
  - SW 001 (sw-01)  was at the top
      fastener SW 001 (sw-01): type Spot Weld → Screw, counts as assigned yes → no
      link - Outer panel preparation (outer-prep) → Station 30: hemming (st30)
)"),
              std::string::npos)
        << told;
}

TEST(DiffProgram, WritesWhatItsSchemaSays) {
    const auto schema = nlohmann::json::parse(plantext::contentOf(DOCS "/diff.schema.json"));
    const Outcome told = run("diff --format json " EXAMPLES "/door-line.plan.json %", kNone);
    EXPECT_EQ(schemacheck::faultsOf(nlohmann::json::parse(told.output), schema), "");
    const auto& properties = schema["properties"]["changes"]["items"]["properties"];
    EXPECT_EQ(properties["change"]["enum"], nlohmann::json(kBillChangeWords));
    EXPECT_EQ(properties["edits"]["items"]["properties"]["edit"]["enum"], nlohmann::json(kPlanEditWords));
}

TEST(DiffProgram, WorksForGit) {
    if (runShell("command -v git").status != 0) {
        GTEST_SKIP() << "git isn't installed";
    }
    const std::string folder = plantext::makeFile("folder", "") + ".d";
    const std::string start = "cd " + folder + " && ";
    const Outcome made =
        runShell("rm -rf " + folder + " && mkdir " + folder + " && " + start +
                 "git init -q && git config user.name n && git config user.email e && git config diff.plan.textconv "
                 "'" PLANNER_PROGRAM " bom' && git config difftool.plan.cmd '" PLANNER_PROGRAM
                 " diff \"$LOCAL\" \"$REMOTE\"' && "
                 "echo '*.plan.json diff=plan' > .gitattributes && cp " EXAMPLES "/removal.plan.json a.plan.json && "
                 "git add . && git commit -qm one && sed -i 's/\"Bracket\"/\"Frame\"/' a.plan.json && cp a.plan.json "
                 "new.plan.json && "
                 "git add -N new.plan.json");
    ASSERT_EQ(made.status, 0) << made.errors;
    const Outcome converted = runShell(start + "git diff a.plan.json");
    EXPECT_NE(converted.output.find("-  Bracket (product)\n+  Frame (product)\n"), std::string::npos)
        << converted.output;
    const Outcome tool = runShell(start + "git difftool -y -t plan");
    EXPECT_NE(tool.output.find("~ Frame (bracket)  was called Bracket"), std::string::npos)
        << tool.output << tool.errors;
    EXPECT_NE(tool.output.find("+ Frame (bracket)  at the top"), std::string::npos) << tool.output << tool.errors;
    runShell("rm -rf " + folder);
}

} // namespace
