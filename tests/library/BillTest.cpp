// From a plan to its bill: what the passes leave, what stations let through, how structures unfold.

#include "library/Bills.h"

using namespace testmodel;

namespace {

struct BillRow {
    const char* name;
    const char* drawing;
    const char* bom;
    Change change = nullptr;
};

template <class Rows>
void checkBills(const Rows& rows, Root kind, Algorithm algorithm) {
    for (const BillRow& row : rows) {
        World world;
        Thing& root = draw(world, kind, row.drawing);
        apply(row.change, world);
        EXPECT_EQ(bomText(makeGenerator(root, kind, algorithm)->GetBom(0)), row.bom) << row.name << ": " << row.drawing;
    }
}

const BillRow kOutcomes[] = {
    {"OneAssignment", "S1: +P | S2", "P"},
    {"TwoAssignments", "S1: +P | S2: +P", "P"},
    {"ThenWorkedOn", "S1: +P | S2: =P", "P"},
    {"OnlyWorkedOn", "S1: =P | S2", ""},
    {"TakenOut", "S1: +P | S2: -P", ""},
    {"WorkedOnThenTakenOut", "S1: =P | S2: -P", ""},
    {"WorkedOnTakenOutWorkedOn", "S1: =P | S2: -P | S3: =P", "P"},
    {"TakenOutThenWorkedOn", "S1: +P | S2: -P | S3: =P", "P"},
    {"WorkedOnInBetween", "S1: +P | S2: =P | S3: -P", "P"},
    {"TakenOutAndAssignedAgain", "S1: +P | S2: -P | S3: +P", "P"},
    {"NeverAssigned", "S1: -P | S2", ""},
    {"OutputTakenOut", "S1: >P | S2: -P", ""},
    {"TwoRemovalsOfOneAssignment", "S1: +P | S2: -P -P | S3: +Q", "Q"},
    {"LatestMentionStandsFirst", "S1: +P +Q | S2: +P | S3: +O", "O P Q"},
    {"PartsOfAnOutput", "S1: +P +Q | S2: >A(P Q)", "A(P Q)"},
    {"PartOfAnEarlierOutput", "S1: >A(P Q) | S2: +P", "P A(P Q)"},
    {"StructureTakenOutWhole", "S1: +A(P Q(R)) | S2: -A", ""},
    {"StructureTakenOutInPart", "S1: +A(P Q) | S2: -P", "A(P Q)"},
    {"StructureWorkedOn", "S1: +A(P Q) | S2: =A", "A(P Q)"},
    {"PartsOfWhatIsWorkedOn", "S1: =A(P) | S2: -A | S3: =A", "A(P)"},
    {"ListsOfOneStepInOrder", "S1: =Q -X *w +P >O | S2", "O P *w"},
    {"SameFastenerTwice", "S1: *w *w | S2: *w", "*w"},
    {"FastenersOfTheTwelveTypes", "S1: *a{Sealant Point} *b{Screw} *c{Nail} *d{screw} *e{Stud} | S2", "*a *b *e"},
    {"FastenerFirstAssigned", "S1: +w *w | S2", "w"},
};
const BillRow kFlows[] = {
    {"LastStepFirst", "S1: +A | S2: +B | S3: +C", "C B A"},
    {"OneStepAloneLeadsNowhere", "S1: +A", ""},
    {"DiamondTakesEachBranchToItsStart", "S1: +A | S2: +B | S4: +D, S3: +C ; S1>S3 S3>S4", "D B A C"},
    {"BranchThatNeverJoins", "S1: +A | S2: +B, S3: +C ; S1>S3", "C A"},
    {"OnlyTheLastOfSeveralFlows", "S1: +A | S2: +B, S3: +C | S4: +D", "D C"},
    {"ChildrenBeforeTheirParent", "S1: +A | S2: +B { T1: +C | T2: +D } | S3: +E", "E B D C A"},
    {"LoopIsTakenOnce", "S1: +A | S2: +B | S3: +C ; S3>S1", "B A C"},
    {"RootCounts", "S1: +A | S2", "X A",
     [](World& world) {
         world["R"].items[2] = Things{&world.thing("X", kItem)};
     }},
};
const BillRow kStations[] = {
    {"StationItself", "S@station: +P =Q >O | T", "O P"},
    {"LoadingInAStation", "S@station { L@loading: +P =Q -X >O *w | T }", "P"},
    {"OtherStepsInAStation", "S@station { T: +P >O *w | G@grouping: +Q }", ""},
    {"WalkGoesOnThrough", "A: +X | S@station { T: +P | L@loading: +Q | U } | B: +Y", "Y Q X"},
    {"LoadingThreeLevelsBelow", "S@station { G@grouping { T { L@loading: +P >O | U } | V } | W }", "P"},
    {"StationInAStation", "S@station { U@station: +P | V }", ""},
    {"LoadingOutsideStations", "L@loading: +P >O *w | T", "O P *w"},
    {"OtherResultThanOneIsNo", "S@station { T: +P | U }", "P",
     [](World& world) {
         world["S"].modelTypes["BIWActivityStation"] = 2;
     }},
    {"LoadingWinsOverStation", "S@station { L@station: +P | T }", "P",
     [](World& world) {
         world["L"].modelTypes["BIWActivityLoading"] = 1;
     }},
    {"UntypedParentIsPassedOver", "S@station { G { T: +P | U } | V }", "",
     [](World& world) {
         world["T"].parent = &world.thing("untyped", kAbstract);
         world["untyped"].parent = &world["S"];
         world["U"].parent = world["T"].parent;
     }},
};
const BillRow kStructures[] = {
    {"AssemblyInItself", "S1: +A[A] | S2", "A(A)"},
    {"AssemblyInItsPart", "S1: +A[B[A]] | S2", "A(B(A))"},
    {"SameAssemblyTwice", "S1: +T(A[P] A) | S2", "T(A(P) A(P))"},
    {"PlainProductInItself", "S1: +A(A) | S2", "A(A)"},
    {"PlainProductInItsPart", "S1: +A(B(A) C) | S2", "A(B(A) C)"},
    {"PlainProductBelowAnAssembly", "S1: +A(B[A]) | S2", "A(B(A(B)))"},
    {"PlainProductTwiceNotNested", "S1: +A(B(C) B) | S2", "A(B(C) B(C))"},
    {"EmptyLists", "S1: +A[] +B() | S2", "A B"},
    {"NullLists", "S1: +A[P] +B(Q) | S2", "A B",
     [](World& world) {
         world["A"].held = world["B"].parts = MaybeThings();
     }},
    {"AssemblyGoesBeforeProduct", "S1: +A[P] +Q | S2", "Frame(P) Q",
     [](World& world) {
         world["A"].answers |= kProduct;
         world["A"].parts = Things{&world["Q"]};
         world["A"].assemblyName = "Frame";
     }},
    {"UnknownObject", "S1: +A | S2", "not defined", answers("A", 0)},
    {"NamesPassThrough", "S1: +A | S2", "T\xC3\xBCr & <\xE2\x82\xAC>",
     [](World& world) {
         world["A"].name = "T\xC3\xBCr & <\xE2\x82\xAC>";
     }},
};
const BillRow kLegacy[] = {
    {"OutputsOpenLevels", "S1: +P | S2: >Q | S3: >O", "O(Q(P))"},
    {"OwnNodesBeforeEarlierSteps", "S1: +P | S2: >Q | S3: >O +N", "O(N Q(P))"},
    {"OnlyTheFirstOutputReceives", "S1: +P | S2: >O1 >O2 +N", "O1(N P) O2"},
    {"PlainProductIsALeaf", "S1: +A(P) | S2", "A"},
    {"AssemblyUnfolds", "S1: +A[P B[Q]] | S2", "A(P B(Q))"},
    {"AssemblyInItselfEnds", "S1: +A[B[A]] | S2", "A(B)"},
    {"FirstLevelRepeatLosesItselfOnly", "S1: +A[P] | S2: +A", "A(P) P"},
    {"DeeperRepeatLosesAllBelow", "S1: +B[C] | S2: >O +X[B]", "O(X(B(C)))"},
    {"LiftedChildMayRepeat", "S1: +A[P] | S2: +A | S3: +A", "A(P) P"},
    {"RemovalBesideItsAssignment", "S1: +P | S2: -P | S3: >O", "O"},
    {"RemovalAboveALevel", "S1: +P | S2: >O | S3: -P", "O"},
    {"WorkedOnHidesTheAssignment", "S1: +P | S2: =P", ""},
    {"FastenersUnderTheOutput", "S1: *w >O | S2", "O(*w)"},
    {"OutputInsideAStationIsLeftOut", "S@station { L@loading: +P >O | T } | U: >Q", "Q(P)"},
    {"BranchesGoUnderTheSameOutput", "S1: +A | S2: +B | S4: >O, S3: +C ; S1>S3 S3>S4", "O(B A C)"},
    {"LoopIsTakenOnce", "S1: >A | S2: >B | S3: >C ; S3>S1", "B(A(C))"},
};
const BillRow kResources[] = {
    {"AllThatIsAssigned", "R@resource: +X ( C1@resource: +P >O *w | C2@resource: +Q )", "X Q O P w"},
    {"ActivitiesAndResources", "R@resource { A1: +P | C1@resource: >O | A2: +Q *w }", "Q *w O P"},
    {"BehaviourWithoutItems", "R@resource: +P", "", lacks("R.b", kResourceItems)},
    {"UnlinkedFastenerTypeIsAProduct", "R@resource: *w{Nail}", "w"},
};
const BillRow kLegacyResources[] = {
    {"OutputsOpenLevels", "R@resource: >X ( C1@resource: +P | C2@resource: >O[P Q] +R )", "X(O(P Q R))"},
};
TEST(Bills, AreWhatTheTablesSay) {
    checkBills(kOutcomes, Root::Process, Algorithm::Present);
    checkBills(kFlows, Root::Process, Algorithm::Present);
    checkBills(kStations, Root::Process, Algorithm::Present);
    checkBills(kStructures, Root::Process, Algorithm::Present);
    checkBills(kLegacy, Root::Process, Algorithm::Legacy);
    checkBills(kResources, Root::Resource, Algorithm::Present);
    checkBills(kLegacyResources, Root::Resource, Algorithm::Legacy);
}

TEST(PreviewObjects, DescendantsComeBeforeTheirProduct) {
    World world;
    VXMProcessBomGenerator generator(handle(drawPlan(world, "S1: +A(P Q(R)) *w =X | S2: >O")));
    EXPECT_EQ(generator.GetPreviewObjects().Size(), 0);
    generator.GetBom(0);
    EXPECT_EQ(listText(generator.GetPreviewObjects()), "O P R Q A w");
}

TEST(PreviewObjects, AnUnshownNodeLeavesItsPlaceToItsShownChildren) {
    World world;
    // A is worked on and not in the bill; its part P was taken out beside it, so P counts as worked on again.
    VXMProcessBomGenerator generator(handle(drawPlan(world, "S1: =P | S2: -P | S3: =A(P Q)")));
    EXPECT_EQ(bomText(generator.GetBom(0)), "P");
    EXPECT_EQ(listText(generator.GetPreviewObjects()), "P");
}

} // namespace
