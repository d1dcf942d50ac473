// From a plan or resource to its flow graph: who has a node, with which number, linked with whom in which order.

#include "library/Bills.h"

using namespace testmodel;

namespace {

struct WalkRow {
    const char* name;
    const char* drawing;
    const char* graph;
    int counter; // number that the next node would get
    Change change = nullptr;
};

void check(const WalkRow& row, Root kind) {
    SCOPED_TRACE(row.name);
    World world;
    Thing& root = draw(world, kind, row.drawing);
    apply(row.change, world);
    const auto generator = makeGenerator(root, kind, Algorithm::Present);
    generator->MainCheckFlow();
    EXPECT_EQ(graphText(*generator, world), row.graph) << row.drawing;
    EXPECT_EQ(generator->GetCounter(), row.counter);
    EXPECT_EQ(generator->CheckUse(handle(root))->GetNumber(), 1);
}

const WalkRow kProcess[] = {
    {"Sequence", "A1 | A2 | A3", "R=1<A3 A1=2>A2 A2=3<A1>A3 A3=4<A2>R", 5},
    {"ListedBackwards", "A3, A2, A1 ; A1>A2 A2>A3", "R=1<A3 A1=2>A2 A2=3<A1>A3 A3=4<A2>R", 5},
    {"Nesting", "A1 | A2 { B1 | B2 }", "R=1<A2 A1=2>B1 A2=3<B2>R B1=4<A1>B2 B2=5<B1>A2", 6},
    {"ChildrenAllFallAway", "A1 | A2 { L@logical }", "R=1<A2 A1=2>A2 A2=3<A1>R", 4},
    {"EmptyChildList", "A1 | A2 {}", "R=1<A2 A1=2>A2 A2=3<A1>R", 4},
    {"LinkedLogicalNode", "L@logical | A", "R=1<A L=2>A A=3<L>R", 4},
    {"Fork", "A1 | S1, S2 ; A1>S2", "R=1<S2 A1=2>S1,S2 S1=3<A1 S2=4<A1>R", 5},
    {"Join", "A1 | S1 | J, S2 ; A1>S2 S2>J", "R=1<J A1=2>S1,S2 S1=3<A1>J J=4<S1,S2>R S2=5<A1>J", 6},
    {"SeveralFlows", "A1 | A2, A3 | A4", "R=1<A4 A1=2>A2 A2=3<A1 A3=4>A4 A4=5<A3>R", 6},
    {"SeveralFlowsStartSideBySide", "Q | P { A1 | A2, A3 | A4 }",
     "R=1<P Q=2>A1,A3 P=3<A4>R A1=4<Q>A2 A2=5<A1 A3=6<Q>A4 A4=7<A3>P", 8},
    {"LoneChild", "A", "R=1 A=2", 3},
    {"LoneLastChildWipesOut", "A1 | A2, A3", "R=1 A1=2>A2 A2=3<A1 A3=4", 5},
    {"LoneChildBehindAnother", "Q | P { A }", "R=1<P Q=2>A P=3<A>R A=4<Q>P", 5},
    {"SuccessorListedTwice", "A | B ; A>B", "R=1<B A=2>B,B B=3<A,A>R", 4},
    {"EndLiesOnTheFirstBranch", "A | B | C, D ; A>D D>B", "R=1<C A=2>B,D B=3<A,D>C C=4<B>R D=5<A>B", 6},
    {"LinksOfTheRootAreNotRead", "A | B", "R=1<B A=2>B B=3<A>R", 4, linksX("R", kStep)},
    {"SuccessorWithoutType", "A | B", "R=1<A A=2>R B=3", 4, lacks("B", kSpec)},
    {"SuccessorThatIsNoActivity", "A | B", "R=1 A=2", 5, answers("B", kSpec)},
    {"FirstItemWithoutType", "A | B", "R=1", 2, lacks("A", kSpec)},
    {"RootWithoutType", "A | B", "R=1", 2, lacks("R", kSpec)},
    {"NoChildManagement", "A | B", "R=1", 2, lacks("R", kChildren)},
    {"NullChildInTheList", "A | B", "R=1<B A=2>B B=3<A>R", 4,
     [](World& world) {
         world["R"].children->insert(world["R"].children->begin(), nullptr);
     }},
    {"NoFlowManagement", "A, B", "R=1 A=2 B=3", 4, lacks("A", kFlow)},
    {"LoopOfTwo", "A | B ; B>A", "R=1<A A=2<B>B,R B=3<A>A", 4},
    {"LoopOfOne", "A ; A>A", "R=1<A A=2<A>A,R", 3},
    {"LoopBehindATail", "A | B | C ; C>B", "R=1<B A=2>B B=3<A,C>C,R C=4<B>B", 5},
    {"LinkAcrossParents", "P1 { A1 }, P2 { B1 } ; A1>B1", "R=1 P1=2<B1 A1=3>B1 B1=4<A1>P1 P2=5", 6},
    {"SecondNodeForAFirstItem", "P { A | B }, C ; P>C", "R=1<C P=2<B>C A=3>B B=4<A>P C=5<P>R", 6},
    {"ParentLinkedToItsChild", "P { A } ; P>A", "R=1<A P=2<A>A P=3>A A=4<P,P>P,R", 5},
    {"RootLinkedToItsChild", "A ; R>A", "R=1<A R=2>A A=3<R>R", 4},
};

const WalkRow kResourceRows[] = {
    {"LinkedActivities", "R@resource { A1 | A2 }", "R=1<A2 A1=2>A2 A2=3<A1>R", 4},
    {"ActivitiesListedBackwards", "R@resource { A2, A1 } ; A1>A2", "R=1<A2 A1=2>A2 A2=3<A1>R", 4},
    {"ActivitiesWithoutLinks", "R@resource { A1, A2 }", "R=1<A2 A1=2 A2=3>R", 4},
    {"ActivitiesBehindAResource", "R@resource ( Q@resource | P@resource { A1, A2 } )",
     "R=1<P Q=2>A1,A2 P=3<A2>R A1=4<Q A2=5<Q>P", 6},
    {"ChildProducts", "R@resource ( C1@resource | C2@resource )", "R=1<C2 C1=2>C2 C2=3<C1>R", 4},
    {"ChildProductWithoutLinks", "R@resource ( C1@resource )", "R=1", 2},
    {"NullLinksAreNone", "R@resource ( C1@resource )", "R=1", 2,
     [](World& world) {
         world["C1"].nullLinks = true;
     }},
    {"EmptyActivitiesHideProducts", "R@resource {} ( C1@resource | C2@resource )", "R=1", 2},
    {"LoneResource", "R@resource { C1@resource }", "R=1 C1=2", 3},
    {"LoneActivity", "R@resource { A1 }", "R=1<A1 A1=2>R", 3},
    {"LoneActivityWithoutFlow", "R@resource { A1 }", "R=1 A1=2", 3, lacks("A1", kFlow)},
    {"LoneActivityBelowAnActivity", "R@resource { A1 { B1 } | A2 }", "R=1<A2 A1=2>A2 A2=3<A1>R", 4},
    {"BehaviourFails", "R@resource ( C1@resource { A1 } | C2@resource )", "R=1<C2 C1=2>C2 C2=3<C1>R", 4,
     failingBehaviour("C1")},
    {"BehaviourIsNull", "R@resource ( C1@resource { A1 } | C2@resource )", "R=1<C2 C1=2>C2 C2=3<C1>R", 4,
     noBehaviour("C1")},
    {"FailedBehaviourStillHasItsLinks", "R@resource ( C1@resource | C2@resource )", "R=1<X C1=2>X X=3<C1>R", 4,
     [](World& world) {
         world["C1"].behaviourStatus = QOR_FAILED;
         world["R"].parts = Things{&world["C1"]};
         world["C1.b"].answers |= kResourceFlow;
         World::link(world["C1.b"], world.thing("X", kStep));
     }},
    {"BehaviourGoesBeforeTheResource", "R@resource ( C1@resource | C2@resource )", "R=1 C1=2", 4,
     [](World& world) {
         world["C1.b"].answers |= kResourceFlow;
     }},
    {"ResourceThatIsNoProduct", "R@resource ( C1@resource | C2@resource )", "=1", 2, lacks("R", kProduct)},
    {"NullNodeBehindAResource", "R@resource ( C1@resource | C2@resource )", "R=1<C1 C1=2>C2,R C2=3<C1", 5,
     linksX("C1", kItem)},
    {"NullNodeBehindAnActivity", "R@resource { A1 | A2 }", "R=1<A2 A1=2>A2 A2=3<A1>R", 4, linksX("A1", kItem)},
    {"NullNodeAmongChildren", "R@resource { A1 | A2 }", "R=1 A1=2>A2 A2=3<A1", 5,
     [](World& world) {
         world["R.b"].activities->push_back(&world.thing("X", kSpec));
     }},
    {"NullNodeBetweenChildren", "R@resource { A1, A2 }", "R=1<A2 A1=2 A2=4>R", 5,
     [](World& world) {
         Things& activities = *world["R.b"].activities;
         activities.insert(activities.begin() + 1, &world.thing("X", kSpec));
     }},
    {"BothKindsInOneFlow", "R@resource { A1 | C1@resource { B1 | B2 } | A2 }",
     "R=1<A2 A1=2>B1 C1=3<B2>A2 B1=4<A1>B2 B2=5<B1>C1 A2=6<C1>R", 7},
    {"Fork", "R@resource ( C1@resource | C2@resource, C3@resource ) ; C1>C3", "R=1<C3 C1=2>C2,C3 C2=3<C1 C3=4<C1>R", 5},
    {"Join", "R@resource ( C1@resource | C2@resource | J@resource, C3@resource ) ; C1>C3 C3>J",
     "R=1<J C1=2>C2,C3 C2=3<C1>J J=4<C2,C3>R C3=5<C1>J", 6},
    {"LoopOfTwo", "R@resource ( C1@resource | C2@resource ) ; C2>C1", "R=1<C1 C1=2<C2>C2,R C2=3<C1>C1", 4},
    {"LoopThroughBothKinds", "R@resource { A1 | C1@resource } ; C1>A1", "R=1<A1 A1=2<C1>C1,R C1=3<A1>A1", 4},
    {"RootLinkedToItsActivity", "R@resource { A1 } ; R>A1", "R=1<A1 R=2<A1>A1 A1=3<R>R,R", 4},
};

TEST(Walk, OfAProcess) {
    for (const WalkRow& row : kProcess) {
        check(row, Root::Process);
    }
}

TEST(Walk, OfAResource) {
    for (const WalkRow& row : kResourceRows) {
        check(row, Root::Resource);
    }
}

TEST(Walk, ANullNodeGivesBackWhatCameBefore) {
    World world;
    Thing& root = drawPlan(world, "A | B");
    for (const Root kind : {Root::Process, Root::Resource}) {
        const auto generator = makeGenerator(root, kind, Algorithm::Present);
        const std::unique_ptr<VXMFabFlowNode> before(generator->CreateFlowNode(handle(root), 0));
        EXPECT_EQ(generator->CheckFlow(nullptr, nullptr, 1), nullptr);
        EXPECT_EQ(generator->CheckFlow(before.get(), nullptr, 1), before.get());
    }
}

struct StandaloneRow {
    const char* name;
    unsigned answers;
    bool before; // has a predecessor
    bool behind; // has a successor
    int process; // answer of each generator
    int resource;
};

const StandaloneRow kStandalone[] = {
    {"ActivityWithoutLinks", kStep, false, false, 0, 1},     {"ActivityWithLinks", kStep, true, false, 0, 0},
    {"LogicalWithoutLinks", kLogical, false, false, 1, 1},   {"LogicalWithPredecessor", kLogical, true, false, 0, 0},
    {"LogicalWithSuccessor", kLogical, false, true, 0, 0},   {"NoFlowAtAll", kSpec, true, true, 0, 1},
    {"ResourceWithoutLinks", kResource, false, false, 0, 1}, {"ResourceWithSuccessor", kResource, false, true, 0, 0},
};

TEST(Standalone, EachGeneratorHasItsRule) {
    for (const StandaloneRow& row : kStandalone) {
        World world;
        Thing& item = world.thing("X", row.answers);
        item.nullLinks = true;
        if (row.before) {
            item.predecessors.push_back(&world.thing("before", kStep));
        }
        if (row.behind) {
            item.successors.push_back(&world.thing("behind", kStep));
        }
        EXPECT_EQ(VXMProcessBomGenerator(nullptr).IsStandaloneLogicalNode(handle(item)), row.process) << row.name;
        EXPECT_EQ(VXMResourceBomGenerator(nullptr).IsStandaloneLogicalNode(handle(item)), row.resource) << row.name;
    }
}

TEST(FirstItem, FollowsFirstPredecessorsToTheStartOrOnceAroundALoop) {
    World world;
    drawPlan(world, "P1 | X, P0 | P2 ; P2>X");
    drawPlan(world, "A | B | C | D ; D>B"); // B's first predecessor is A
    drawPlan(world, "E | F | G, tail ; G>E G>tail");
    drawResource(world, "C1@resource | C2@resource ; X>C1");
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"X", "P1", "P1"}, {"P2", "P0", "P0"}, {"P1", "P1", "P1"}, {"D", "A", "A"},
        {"F", "F", "F"},   {"G", "G", "G"},    {"tail", "G", "G"}, {"C2", "C2", "P1"}};
    VXMProcessBomGenerator process(nullptr);
    VXMResourceBomGenerator resource(nullptr); // knows resource links too
    for (const auto& [item, first, firstOfResource] : rows) {
        EXPECT_EQ(process.GetFirstFlowNode(handle(world[item])).Impl(), &world[first]) << item;
        EXPECT_EQ(resource.GetFirstFlowNode(handle(world[item])).Impl(), &world[firstOfResource]) << item;
    }
    EXPECT_FALSE(resource.GetFirstFlowNode(nullptr));
}

TEST(FirstItem, AResourcesOwnLinksAloneDecide) {
    World world;
    drawPlan(world, "A | X");
    Thing& bothKinds = world["X"];
    bothKinds.predecessors.clear();
    bothKinds.nullLinks = true;
    bothKinds.answers |= kResourceFlow;
    EXPECT_EQ(VXMResourceBomGenerator(nullptr).GetFirstFlowNode(handle(bothKinds)).Impl(), &bothKinds);
    EXPECT_EQ(VXMResourceBomGenerator(nullptr).IsStandaloneLogicalNode(handle(bothKinds)), 1);
}

TEST(CreateFlowNode, OfAResourceGenerator) {
    World world;
    VXMResourceBomGenerator generator(nullptr);
    const auto make = [&](const char* name, unsigned answers) {
        return std::unique_ptr<VXMFabFlowNode>(generator.CreateFlowNode(handle(world.thing(name, answers)), 1));
    };
    EXPECT_EQ(make("manager", kManager)->IsAResourceFlowNode(), 1);
    EXPECT_EQ(make("activity", kAbstract)->IsAResourceFlowNode(), 0);
    EXPECT_EQ(make("both", kAbstract | kManager)->IsAResourceFlowNode(), 1);
    EXPECT_EQ(make("neither", kSpec), nullptr);
    EXPECT_EQ(generator.CreateFlowNode(nullptr, 0), nullptr);
}

} // namespace
