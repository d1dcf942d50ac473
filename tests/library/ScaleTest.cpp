// Size and depth: cost grows with what is made, and neither the thread's stack nor a chain of neighbours bounds it.

#include "library/Bills.h"

#include "QORPlatform/navigation/QORINavigateObject.h"
#include "VXMBomInfrastructure/navigation/VXMBomNavObject.h"

#include <chrono>

using namespace testmodel;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr int kMany = 50000;
#else
constexpr int kMany = 200000;
#endif
constexpr int kDeep = kMany / 2;
constexpr std::chrono::seconds kBound(60); // far above what is needed, far below what squares of these numbers need

std::string named(const char* prefix, int index) {
    return prefix + std::to_string(index);
}

/// A step that first-assigns a product of its own.
Thing& step(World& world, Thing& parent, int index) {
    Thing& made = world.thing(named("S", index), kStep);
    made.parent = &parent;
    made.items[2] = Things{&world.thing(named("P", index), kItem)};
    return made;
}

Thing& chainPlan(World& world, int count) {
    Thing& root = world.thing("R", kStep);
    root.children = Things{&step(world, root, 1)};
    for (int index = 2; index <= count; ++index) {
        Thing& next = step(world, root, index);
        World::link(*root.children->back(), next);
        root.children->push_back(&next);
    }
    return root;
}

int countElements(const DOM_Document& document) {
    const DOM_Node top = document.getDocumentElement();
    int count = 0;
    DOM_Node node = top;
    while (true) {
        DOM_Node next = node.getFirstChild();
        while (next.isNull() && !(node == top)) {
            next = node.getNextSibling();
            if (next.isNull()) {
                node = node.getParentNode();
            }
        }
        if (next.isNull()) {
            return count;
        }
        node = next;
        ++count;
    }
}

/// Counts the rows of a tree, walked to its end through its tree objects.
int countRows(const DOM_Document& document) {
    DOM_Element top = document.getDocumentElement();
    std::vector<QORBaseUnknown_var> waiting{QORBaseUnknown_var::Adopt(new VXMBomNavObject(top))};
    int count = -1; // without the top
    for (; !waiting.empty(); ++count) {
        const QORINavigateObject_var row(waiting.back());
        waiting.pop_back();
        const std::unique_ptr<QORListValQORBaseUnknown_var> children(row->GetChildren());
        waiting.insert(waiting.end(), children->begin(), children->end());
    }
    return count;
}

void expectElements(Thing& root, int expected, Root kind = Root::Process, Algorithm algorithm = Algorithm::Present) {
    const auto begin = std::chrono::steady_clock::now();
    {
        const auto generator = makeGenerator(root, kind, algorithm);
        EXPECT_EQ(countElements(generator->GetBom(0)), expected);
        EXPECT_EQ(countRows(generator->GetBom(0)), expected);
        EXPECT_EQ(generator->GetPreviewObjects().Size(), expected);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, kBound);
}

TEST(Scale, ChainOfSteps) {
    World world;
    expectElements(chainPlan(world, kMany), kMany);
}

TEST(Scale, EveryProductRemovedAndAssignedAgain) {
    World world;
    Thing& root = chainPlan(world, kMany);
    const Things& steps = *root.children;
    for (std::size_t index = 0; index + 2 < steps.size(); ++index) {
        Thing* const product = steps[index]->items[2]->front();
        steps[index + 1]->items[4]->push_back(product);
        steps[index + 2]->items[2]->push_back(product);
    }
    expectElements(root, kMany);
}

/// Every removal of a process assignment comes behind all first assignments beside it.
TEST(Scale, OneProductWorkedOnAndBroughtInManyTimes) {
    World world;
    Thing& root = chainPlan(world, kMany);
    Thing* const product = &world.thing("P", kItem);
    const Things& steps = *root.children;
    for (std::size_t index = 0; index < steps.size(); ++index) {
        steps[index]->items[2]->clear();
        steps[index]->items[index * 2 < steps.size() ? 1 : 2]->push_back(product);
    }
    expectElements(root, 1);
}

TEST(Scale, EveryStepIsLinkedToOneThatLeadsNowhere) {
    World world;
    Thing& root = chainPlan(world, kMany);
    Thing& nowhere = world.thing("nowhere", kStep);
    const Things& steps = *root.children;
    for (std::size_t index = 0; index + 1 < steps.size(); ++index) {
        World::link(*steps[index], nowhere);
    }
    expectElements(root, kMany);
}

/// Each step of a loop can be reached from a line that leads nowhere but back to the loop.
TEST(Scale, WaysOnALoopThatLeadNowhere) {
    World world;
    Thing& root = chainPlan(world, kDeep);
    const Things line = *root.children;
    for (int index = 1; index < kDeep; ++index) {
        line[index]->items[2]->clear();
    }
    Things nowhere;
    for (int index = 0; index < kDeep; ++index) {
        nowhere.push_back(&world.thing(named("N", index), kStep));
        nowhere.back()->parent = &root;
        World::link(index > 0 ? *nowhere[index - 1] : *line[kDeep - 2], *nowhere.back());
    }
    World::link(*line[kDeep - 2], *line[1]);
    for (int index = 1; index < kDeep - 2; ++index) {
        World::link(*nowhere.back(), *line[index]);
    }
    root.children->insert(root.children->end(), nowhere.begin(), nowhere.end());
    expectElements(root, 1);
}

TEST(Scale, StepsNestedInEachOther) {
    World world;
    Thing& root = drawPlan(world, "S1: +P1 | S2: +P2");
    Thing* above = &world["S2"];
    for (int index = 3; index <= kMany; ++index) {
        Thing& below = step(world, *above, index);
        above->children = Things{&below};
        above = &below;
    }
    expectElements(root, kMany);
}

TEST(Scale, WideStructure) {
    World world;
    Thing& root = drawPlan(world, "S1: +A() | S2");
    for (int index = 1; index <= kMany; ++index) {
        world["A"].parts->push_back(&world.thing(named("P", index), kItem | kProduct));
    }
    expectElements(root, kMany + 1);
}

void nest(World& world, MaybeThings Thing::*list, unsigned answers) {
    Thing* above = &world["A"];
    for (int index = 2; index <= kDeep; ++index) {
        Thing& part = world.thing(named("P", index), kItem | answers);
        above->*list = Things{&part};
        above = &part;
    }
}

TEST(Scale, DeepProducts) {
    World world;
    Thing& root = drawPlan(world, "S1: +A() | S2: -A | S3: =A");
    nest(world, &Thing::parts, kProduct);
    expectElements(root, kDeep);
}

TEST(Scale, DeepAssemblies) {
    World world;
    Thing& root = drawPlan(world, "S1: +A[] | S2");
    nest(world, &Thing::held, kAssembly);
    expectElements(root, kDeep);
    expectElements(root, kDeep, Root::Process, Algorithm::Legacy);
}

TEST(Scale, OutputsNestedByTheLegacyAlgorithm) {
    World world;
    Thing& root = chainPlan(world, kMany);
    for (Thing* step : *root.children) {
        Thing* const product = step->items[2]->front();
        step->items[2]->clear();
        world.putOut(*step, product);
    }
    expectElements(root, kMany, Root::Process, Algorithm::Legacy);
}

TEST(Scale, ChainOfResources) {
    World world;
    Thing& root = world.thing("R", kResource);
    world.behaviourOf(root);
    root.parts = Things();
    for (int index = 1; index <= kMany; ++index) {
        Thing& resource = world.thing(named("C", index), kResource);
        world.behaviourOf(resource).assignedItems = Things{&world.thing(named("P", index), kItem)};
        if (!root.parts->empty()) {
            World::link(*root.parts->back(), resource);
        }
        root.parts->push_back(&resource);
    }
    expectElements(root, kMany, Root::Resource);
}

TEST(Scale, ChainListedBackwards) {
    World world;
    Thing& root = chainPlan(world, kMany);
    root.children = Things(root.children->rbegin(), root.children->rend());
    expectElements(root, kMany);
}

/// 60 forks and joins in a row after the one step that brings a product; back to it, or on to the end alone.
TEST(Scale, ForksThatBringNothing) {
    for (const bool isLoop : {false, true}) {
        std::string steps = isLoop ? "start | J0: +P" : "aside: +P, start | J0";
        std::string branches;
        std::string links = ";";
        for (int index = 1; index <= 60; ++index) {
            const std::string number = std::to_string(index);
            steps += " | A" + number + " | J" + number;
            branches += ", B" + number;
            links += " J" + std::to_string(index - 1) + ">B" + number + " B" + number + ">J" + number;
        }
        links += isLoop ? " J60>J0 J60>end" : " J60>end";
        World world;
        expectElements(drawPlan(world, steps + branches + ", end" + links), isLoop ? 1 : 0);
    }
}

/// A line without lists, a feeder into each of its steps, and a link back between two of them.
TEST(Scale, FeedersIntoALineWithALoop) {
    World world;
    Thing& root = chainPlan(world, kMany);
    Things line;
    for (Thing* const feeder : Things(*root.children)) {
        feeder->successors.clear();
        feeder->predecessors.clear();
        line.push_back(&world.thing("L" + feeder->name, kStep));
        line.back()->parent = &root;
        World::link(*feeder, *line.back());
        if (line.size() > 1) {
            World::link(*line[line.size() - 2], *line.back());
        }
    }
    World::link(*line[line.size() / 2], *line[line.size() / 2 - 1]);
    root.children->insert(root.children->end(), line.begin(), line.end());
    expectElements(root, kMany);
}

/// 2^1000 paths, in a form whose numbers don't fit any word; each product comes and goes.
TEST(Scale, SectionsInARow) {
    World world;
    Thing& root = world.thing("R", kStep);
    root.children = Things{&step(world, root, 0)};
    for (int index = 1; index <= 3000; index += 3) {
        Thing* const before = root.children->back();
        for (int part = 0; part < 3; ++part) {
            Thing& next = step(world, root, index + part);
            next.items[part == 2 ? 4 : 1]->push_back(before->items[2]->front());
            root.children->push_back(&next);
        }
        Thing* const join = root.children->back();
        for (Thing* const branch : {&world[named("S", index)], &world[named("S", index + 1)]}) {
            World::link(*before, *branch);
            World::link(*branch, *join);
        }
    }
    expectElements(root, 3001);
}

TEST(Scale, EveryStepIsLinkedToTheEnd) {
    World world;
    Thing& root = chainPlan(world, kMany);
    const Things& steps = *root.children;
    for (std::size_t index = 0; index + 2 < steps.size(); ++index) {
        World::link(*steps[index], *steps.back());
    }
    expectElements(root, kMany);
}

TEST(Scale, ALoopThroughAllSteps) {
    World world;
    Thing& root = chainPlan(world, kMany);
    World::link(*root.children->back(), *root.children->front());
    expectElements(root, kMany);
    expectElements(root, kMany, Root::Process, Algorithm::Legacy);
}

TEST(Scale, LoopsThroughOneStep) {
    World world;
    Thing& root = chainPlan(world, 1);
    for (int index = 2; index <= kMany; ++index) {
        Thing& around = step(world, root, index);
        World::link(*root.children->front(), around);
        World::link(around, *root.children->front());
        root.children->push_back(&around);
    }
    expectElements(root, kMany);
    expectElements(root, kMany, Root::Process, Algorithm::Legacy);
}

/// The long way round, and once more where the algorithm shows what closes the ring.
TEST(Scale, AStructureThatHoldsItself) {
    for (const auto& [list, answers] : {std::pair(&Thing::parts, kProduct), std::pair(&Thing::held, kAssembly)}) {
        World world;
        Thing& root = drawPlan(world, list == &Thing::parts ? "S1: +A() | S2" : "S1: +A[] | S2");
        nest(world, list, answers);
        world[named("P", kDeep)].*list = Things{&world["A"]};
        expectElements(root, kDeep + 1);
    }
}

TEST(Scale, AModelThatRaisesAtTheDeepestPlace) {
    World world;
    Thing& root = chainPlan(world, kMany);
    auto& items = root.children->back()->items;
    items.erase(2);
    VXMProcessBomGenerator generator(handle(root));
    EXPECT_THROW(generator.GetBom(0), std::out_of_range);
    items[2] = Things();
    EXPECT_EQ(countElements(generator.GetBom(0)), kMany - 1);
}

} // namespace
