// Every computation ends: links that loop, in whatever way, and structures that hold themselves. Each bill is made with
// and without a trace, which takes the walk's short cuts and its long ways.

#include "library/Bills.h"

using namespace testmodel;

namespace {

struct Row {
    const char* name;
    Root kind;
    const char* drawing;
    const char* bill;
    const char* legacy;
    Change change = {};
};

constexpr Root kProcess = Root::Process;
constexpr Root kResources = Root::Resource;

const Row kRows[] = {
    {"StepWithItself", kProcess, "A: +P | B: +Q ; A>A B>B", "Q P", "Q P"},
    {"StepWithItselfTwice", kProcess, "A: +P ; A>A A>A", "P", "P"},
    {"Pair", kProcess, "A: +P | B: +Q ; B>A", "P Q", "P Q"},
    {"PairWithTail", kProcess, "A: +P | B: +Q | C: +S -P | D: =P ; C>B", "S Q P", "S Q P"},
    {"RootWithItself", kProcess, "A: +P ; R>R A>R", "P", "P"},
    {"RootWithItsChild", kProcess, "A: +P | B: +Q ; R>A B>R", "Q P", "Q P"},
    {"AcrossParents", kProcess, "A: +P { A1: +X | A2: +Y } | B: +Q { B1: +Z } ; B1>A1 A2>B", "Q Y X Z P", "Q Y X Z P"},
    {"ChildWithItsParent", kProcess, "A: +P { A1: +X { A2: +Y } } ; A2>A A>A2", "X P Y", "X P Y"},
    {"AllThroughOneStep", kProcess, "H: +P | A: -P, B: =P, C: +Q ; A>H H>B B>H H>C C>H", "P Q", "P Q"},
    {"LoopsInALoop", kProcess, "A: +P | B: -P | C: =P | D: +Q | E ; B>A D>C E>A C>B", "Q P", "Q P"},
    {"EachWithEach", kProcess, "A: +P, B: -P, C: =P, D: +Q >O ; A>B A>C A>D B>A B>C B>D C>A C>B C>D D>A D>B D>C",
     "O Q P", "P O(Q) Q"},
    {"StationInALoop", kProcess, "A@station { L@loading: +P | M: =Q } | B: +Q -P ; B>A M>L", "Q", "Q"},
    {"OutputsInALoop", kProcess, "A: >O[P] | B: -O >N[O] | C: +N ; C>A", "N(O(P))", "N(O(P))"},
    {"ResourceWithItself", kResources, "R@resource: +P ( C1@resource: +Q | C2@resource: +X ) ; C1>C1 C2>C2 R>R",
     "P X Q", "P X Q"},
    {"ResourcePair", kResources, "R@resource ( C1@resource: +Q | C2@resource: +X ) ; C2>C1", "Q X", "Q X"},
    {"ResourcesAcrossParents", kResources,
     "R@resource ( C1@resource: +Q ( D1@resource: +Y ) | C2@resource: +X ( D2@resource: +Z ) ) ; D2>D1 D1>C2 C2>R",
     "X Y Z Q", "X Y Z Q"},
    {"ActivitiesOfABehaviour", kResources, "R@resource { A1: +P | A2: +Q | A3: +X } ; A3>A1 A2>A2", "P X Q", "P X Q"},
    {"ResourceAndActivity", kResources, "R@resource { A1: +P | C1@resource: +Q { B1: +X } } ; C1>A1 B1>R A1>B1",
     "P Q X", "P Q X"},
    {"BehaviourLinks", kResources, "R@resource: +P ( C1@resource: +Q | C2@resource: +X )", "P Q", "P Q",
     [](World& world) {
         for (const char* name : {"R.b", "C1.b", "C2.b"}) {
             world[name].answers |= kResourceFlow;
             World::link(world[name], world[name]);
         }
         World::link(world["C1.b"], world["C2.b"]);
         World::link(world["C2.b"], world["C1.b"]);
     }},
    {"ResourceInItself", kResources, "R@resource: +P ( C1@resource: +Q | C2@resource: +X )", "P X Q", "P X Q",
     [](World& world) {
         world["C1"].parts = Things{&world["R"], &world["C1"]};
     }},
    {"ActivityInItself", kProcess, "A: +P { B: +Q | C: +X } | D: +Y", "Y P X Q", "Y P X Q",
     [](World& world) {
         world["B"].children = Things{&world["B"], &world["A"], &world["R"]};
     }},
    {"ProductInItself", kProcess, "A: +P(Q(P Q) P) | B: -P | C: =P", "Q(P Q) P", "P"},
    {"AssemblyInItself", kProcess, "A: +P[Q[P] P] >P | B: -P | C: +P", "P(Q(P) P) P Q(P) P", "P(Q)"},
    {"BothKindsInEachOther", kProcess, "A: +A[P(A)] >A | B: +P", "P(A(P(A)))", "P A"},
    {"RingOfProducts", kProcess, "A: +P(Q(X(Y(P)))) +X >Y | B", "Y(P(Q(X(Y))))", "Y(P X)"},
    {"RingOfAssemblies", kProcess, "A: +P[Q[X[Y[P]]]] +X >Y | B", "Y(P(Q(X(Y))))", "Y(P(Q(X)))"},
};

std::string billOf(VXMBomGenerator& generator) {
    std::string bill = bomText(generator.GetBom(1));
    const TraceCapture trace;
    EXPECT_EQ(bomText(generator.GetBom(1)), bill) << "traced";
    return bill;
}

TEST(Loops, EndInEveryComputation) {
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        World world;
        Thing& root = draw(world, row.kind, row.drawing);
        apply(row.change, world);
        EXPECT_EQ(billOf(*makeGenerator(root, row.kind, Algorithm::Present)), row.bill);
        EXPECT_EQ(billOf(*makeGenerator(root, row.kind, Algorithm::Legacy)), row.legacy);
    }
}

} // namespace
