// Steps on many paths: what is walked then against the full form, and what still multiplies.

#include "library/RandomWorld.h"

#include "VXMBomInfrastructure/generation/VXMBomRecorder.h"
#include "VXMBomInfrastructure/generation/VXMTooManyNodes.h"

#include <cstdlib>

using namespace testmodel;

namespace {

/// Whoever listens gets the full form.
class Listener final : public VXMBomRecorder {
public:
    void Begin() override { made = 0; }
    void NodeMade(const VXMFabMBOMNode&, const VXMFabFlowNode*) override { ++made; }
    void NodeGoes(const VXMFabMBOMNode&, Reason, const VXMFabMBOMNode&) override {}
    void NodeShown(const VXMFabMBOMNode&) override {}

    long made = 0;
};

/// Forks and joins, all links going on or, at times, some going back, and lists that take everything out again and
/// again; items are made of items before them, or at times of any.
class Plan {
public:
    Plan(World& world, unsigned seed) : root(world.thing("R", kStep)), world_(world), random_(seed) {
        hasCircles_ = chance(10);
        makeItems();
        const int size = 3 + pick(random_, 9);
        for (int index = 0; index < size; ++index) {
            makeStep(index);
        }
        for (int index = 0; index + 1 < size; ++index) {
            for (int count = chance(60) ? 1 : 2 + pick(random_, 2); count > 0; --count) {
                World::link(*steps_[index], *steps_[index + 1 + pick(random_, std::min(3, size - index - 1))]);
            }
        }
        for (int count = chance(15) ? 1 + pick(random_, 2) : 0; count > 0; --count) {
            World::link(*pickOne(random_, steps_), *pickOne(random_, steps_));
        }
        root.children = steps_;
    }

    Thing& root;

private:
    bool chance(int percent) { return pick(random_, 100) < percent; }

    void makeItems() {
        const int count = 2 + pick(random_, 5);
        for (int index = 0; index < count; ++index) {
            const unsigned kind = chance(70) ? kProduct : kAssembly;
            Thing& item = world_.thing("I" + std::to_string(index), kItem | kFastener | kind);
            item.parts = item.held = Things();
            items_.push_back(&item);
        }
        for (int index = 0; index < count; ++index) {
            for (int parts = chance(50) ? 0 : 1 + pick(random_, 2); parts > 0; --parts) {
                Thing* const part = items_[pick(random_, hasCircles_ ? count : std::max(index, 1))];
                if (hasCircles_ || index > 0) {
                    items_[index]->parts->push_back(part);
                    items_[index]->held->push_back(part);
                }
            }
        }
    }

    void makeStep(int index) {
        Thing& step = world_.thing("S" + std::to_string(index), kStep);
        step.parent = &root;
        fill(step);
        steps_.push_back(&step);
        if (chance(15)) {
            step.modelTypes["BIWActivityStation"] = 1;
            Thing& loading = world_.thing("T" + std::to_string(index), kStep);
            loading.modelTypes["BIWActivityLoading"] = 1;
            loading.parent = &step;
            fill(loading);
            step.children = Things{&loading};
        }
    }

    void fill(Thing& step) {
        const int share = 5 + pick(random_, 30);
        for (Thing* const item : items_) {
            for (auto& [relation, list] : step.items) {
                if (chance(relation == 0 ? 5 : share)) {
                    list->push_back(item);
                }
            }
            if (chance(5)) {
                world_.putOut(step, item);
            }
        }
    }

    World& world_;
    std::mt19937 random_;
    bool hasCircles_ = false;
    Things items_;
    Things steps_;
};

/// Which items were noted as removed: the output shows an assigned item only then.
std::string removedText(VXMBomGenerator& generator, const World& world) {
    VXMFabMBOMNode top(QORBaseUnknown_var(), 0, 0, VXMFabMBOMNode::AT_Top, 0);
    std::vector<std::unique_ptr<VXMFabMBOMNode>> nodes;
    for (Thing* const thing : world.things()) {
        nodes.push_back(std::make_unique<VXMFabMBOMNode>(handle(*thing), 1, 0, VXMFabMBOMNode::AT_Process, 0));
        top.AddSuccessor(nodes.back().get());
    }
    DOM_Document document = generator.GetBom(0);
    const DOM_Element shown = document.createElement("Removed");
    generator.DisplayMBOM(shown, &top);
    return bomText(shown);
}

/// Document, objects, numbers of nodes, removed products.
std::string resultText(VXMBomGenerator& generator, const World& world) {
    const std::string bom = bomText(generator.GetBom(1));
    const std::string objects = listText(generator.GetPreviewObjects());
    return bom + " | " + objects + " | " + treeText(*generator.GetTopNode()) + " | " + removedText(generator, world);
}

/// What the environment asks for: VXM_RANDOM_PLANS random plans from seed VXM_FIRST_PLAN on, rows of VXM_SECTIONS.
int numberFrom(const char* name, int otherwise) {
    const char* const text = std::getenv(name);
    return text ? std::atoi(text) : otherwise;
}

TEST(ManyPaths, ThinnedEqualsFull) {
    const int first = numberFrom("VXM_FIRST_PLAN", 1);
    const int count = numberFrom("VXM_RANDOM_PLANS", 3000);
    int shown = 0;
    long forked = 0;
    for (int seed = first; seed < first + count && !testing::Test::HasFailure(); ++seed) {
        World world;
        const Plan plan(world, static_cast<unsigned>(seed));
        const auto generator = makeGenerator(plan.root, Root::Process, Algorithm::Present);
        generator->SetMaxNodes(20000);
        Listener listener;
        std::string full;
        generator->SetRecorder(&listener);
        try {
            full = resultText(*generator, world);
        } catch (const VXMTooManyNodes&) {
            continue;
        }
        generator->SetRecorder(nullptr);
        ASSERT_EQ(resultText(*generator, world), full) << "seed " << seed;
        shown += full[0] == ' ' ? 0 : 1;
        forked += listener.made;
    }
    EXPECT_GT(shown, count / 2);
    EXPECT_GT(forked, 20L * count);
}

/// So many sections in a row, each with two branches that join again: lists of the first step, and of the three steps
/// of a section.
Thing& drawSections(World& world, int count, const std::string& first, const std::string (&lists)[3]) {
    std::string steps = "J0" + first;
    std::string branches;
    std::string links = ";";
    for (int index = 1; index <= count; ++index) {
        const std::string number = std::to_string(index);
        const std::string before = std::to_string(index - 1);
        steps += " | A" + number + lists[0] + " | J" + number + lists[2];
        branches += ", B" + number + lists[1];
        links += " J" + before + ">B" + number + " B" + number + ">J" + number;
    }
    return drawPlan(world, steps + branches + links);
}

TEST(ManyPaths, ThinOutWhateverIsTakenOutAndBroughtInAgain) {
    struct Case {
        const char* name;
        std::string first;
        std::string lists[3];
    };
    const Case cases[] = {{"assigned, removed, assigned", ": +P", {": =P", ": -P", ": +P -P"}},
                          {"with structure", ": +A(P(Q) P)", {": -A", ": =A", ": =A"}},
                          {"put out and moved, parts assigned before", ": +P >A[P]", {": =A[P]", ": -A", ": =A"}},
                          {"moved away, parts too", ": +P +P", {": =A[P P] -P", ": -A =P", ": -A"}},
                          {"more is removed than assigned", ": =P", {": -P", ": -P", ": *w =P"}}};
    for (const Case& tried : cases) {
        World world;
        Thing& root = drawSections(world, numberFrom("VXM_SECTIONS", 9), tried.first, tried.lists);
        const auto generator = makeGenerator(root, Root::Process, Algorithm::Present);
        Listener listener;
        generator->SetRecorder(&listener);
        const std::string full = resultText(*generator, world);
        EXPECT_GT(listener.made, 1000) << tried.name;
        generator->SetRecorder(nullptr);
        generator->SetMaxNodes(1000);
        EXPECT_EQ(resultText(*generator, world), full) << tried.name;

        World longer;
        Thing& long300 = drawSections(longer, 300, tried.first, tried.lists);
        EXPECT_NO_THROW(makeGenerator(long300, Root::Process, Algorithm::Present)->GetBom(0)) << tried.name;
    }
}

TEST(ManyPaths, WhatStillMultipliesIsRefusedAndNamed) {
    World world;
    Thing& root = drawSections(world, 40, ": +P", {": +A[P]", ": -A", ""});
    world.thing("unseen", kStep);
    for (const Algorithm algorithm : {Algorithm::Present, Algorithm::Legacy}) {
        Things steps;
        root.children->swap(steps);
        const auto generator = makeGenerator(root, Root::Process, algorithm);
        const DOM_Document before = generator->GetBom(0);
        root.children->swap(steps);
        try {
            generator->GetBom(1);
            ADD_FAILURE() << "made";
        } catch (const VXMTooManyNodes& error) {
            const std::string text = error.what();
            for (const char* const part : {"\"A\"", "\"P\"", "\"J0\"", "more than 20000000"}) {
                EXPECT_NE(text.find(part), std::string::npos) << part << " in " << text;
            }
        }
        EXPECT_EQ(generator->GetBom(0), before);
    }
    World bare;
    const auto traced = makeGenerator(drawSections(bare, 40, "", {"", "", ""}), Root::Process, Algorithm::Present);
    const DOM_Document before = traced->GetBom(0);
    try {
        const TraceCapture capture;
        traced->GetBom(1);
        ADD_FAILURE() << "traced";
    } catch (const VXMTooManyNodes& error) {
        EXPECT_NE(std::string(error.what()).find("about 4.4e+12 times, more than 20000000: \"J0\""), std::string::npos)
            << error.what();
    }
    EXPECT_EQ(traced->GetBom(0), before);
    World plain;
    const auto generator =
        makeGenerator(drawPlan(plain, "S1: +P(Q) | S2: -P | S3: +P(Q)"), Root::Process, Algorithm::Present);
    generator->SetMaxNodes(-1);
    EXPECT_EQ(generator->GetMaxNodes(), 0);
    EXPECT_EQ(bomText(generator->GetBom(0)), "P(Q)");
}

} // namespace
