// Properties on random models, and fast forms held against direct ones.

#include "library/RandomWorld.h"

#include "VXMBomInfrastructure/nodes/VXMFabProcessFlowNode.h"

#include <algorithm>
#include <set>

using namespace testmodel;

namespace {

void rebuiltEqualsFreshAndTracedEqualsUntraced(Root kind, Algorithm algorithm) {
    int withContent = 0;
    for (unsigned seed = 1; seed <= 400; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        World world;
        Thing& root = drawRandom(world, random, kind);
        const auto result = [&](VXMBomGenerator& generator) {
            const std::string bom = bomText(generator.GetBom(1));
            return bom + " | " + listText(generator.GetPreviewObjects()) + " | " + graphText(generator, world);
        };
        const auto generator = makeGenerator(root, kind, algorithm);
        const std::string fresh = result(*generator);
        EXPECT_EQ(result(*generator), fresh) << "rebuilt";
        {
            const TraceCapture trace; // nothing is passed over while a trace is written
            EXPECT_EQ(result(*generator), fresh) << "traced";
        }
        world["I0"].name = "changed";
        world["I1"].held = Things{&world["I0"]};
        const std::string rebuilt = result(*generator);
        EXPECT_EQ(result(*makeGenerator(root, kind, algorithm)), rebuilt) << "changed";
        withContent += fresh[0] == ' ' ? 0 : 1;
    }
    EXPECT_GT(withContent, 120);
}

TEST(RandomModels, RebuiltEqualsFreshAndTracedEqualsUntraced) {
    for (const Root kind : {Root::Process, Root::Resource}) {
        rebuiltEqualsFreshAndTracedEqualsUntraced(kind, Algorithm::Present);
        rebuiltEqualsFreshAndTracedEqualsUntraced(kind, Algorithm::Older);
    }
}

int standsInStation(const Thing& step) {
    for (const Thing* above = step.parent; above; above = above->parent) {
        const auto type = above->modelTypes.find("BIWActivityStation");
        if ((above->answers & kAbstract) == 0) {
            return 0; // nothing that the climb could go on with
        }
        if ((above->answers & kSpec) != 0 && type != above->modelTypes.end() && type->second == 1) {
            return 1;
        }
    }
    return 0;
}

TEST(Stations, RememberedEqualsClimbed) {
    int inStation = 0;
    for (unsigned seed = 1; seed <= 800; ++seed) {
        std::mt19937 random(seed);
        World world;
        VXMProcessBomGenerator generator(handle(drawRandom(world, random, Root::Process)));
        generator.MainCheckFlow();
        for (Thing* thing : world.things()) {
            const VXMFabFlowNode* const node = generator.CheckUse(handle(*thing));
            if (node && node->GetNumber() > 0) {
                EXPECT_EQ(node->ParentIsStation(), standsInStation(*thing)) << thing->name << ", seed " << seed;
                inStation += node->ParentIsStation();
            }
        }
    }
    EXPECT_GT(inStation, 150);
}

/// Notes what the walk's searches for first items gave.
class NotingGenerator : public VXMProcessBomGenerator {
public:
    using VXMProcessBomGenerator::VXMProcessBomGenerator;

    QORBaseUnknown_var GetFirstFlowNode(const QORBaseUnknown_var& item) override {
        const bool isOutermost = !searching_;
        searching_ = true;
        QORBaseUnknown_var first = VXMProcessBomGenerator::GetFirstFlowNode(item);
        if (isOutermost) {
            searching_ = false;
            found.emplace_back(dynamic_cast<Thing*>(item.Impl()), dynamic_cast<Thing*>(first.Impl()));
        }
        return first;
    }

    std::vector<std::pair<const Thing*, const Thing*>> found;

private:
    bool searching_ = false;
};

const Thing* firstItem(const Thing* item) {
    std::set<const Thing*> met;
    while (met.insert(item).second && (item->answers & kFlow) != 0 && !item->predecessors.empty()) {
        item = item->predecessors.front();
    }
    return item;
}

TEST(FirstItems, RememberedEqualSearched) {
    std::size_t searches = 0;
    for (unsigned seed = 1; seed <= 800; ++seed) {
        std::mt19937 random(seed);
        World world;
        Thing& root = drawRandom(world, random, Root::Process);
        NotingGenerator generator(handle(root));
        generator.MainCheckFlow();
        for (const auto& [item, first] : generator.found) {
            EXPECT_EQ(first, firstItem(item)) << item->name << ", seed " << seed;
        }
        searches += generator.found.size();
    }
    EXPECT_GT(searches, 800U);
}

/// A vertex without a model object.
class PlainNode final : public VXMFabFlowNode {
public:
    PlainNode() : VXMFabFlowNode(0, 0) {}
    unsigned char IsAResourceFlowNode() const override { return 0; }
};

const VXMFabFlowNode* endOfFlow(const VXMFabFlowNode* node) {
    std::set<const VXMFabFlowNode*> met;
    while (node && node->GetNumberOfSuccessors() > 0) {
        met.insert(node);
        if (met.contains(node->GetSuccessor(1))) {
            return node;
        }
        node = node->GetSuccessor(1);
    }
    return node;
}

TEST(EndsOfFlows, RememberedEqualWalked) {
    VXMProcessBomGenerator generator(nullptr);
    EXPECT_EQ(generator.GetLastNodeInFlow(nullptr), nullptr);
    for (unsigned seed = 1; seed <= 600; ++seed) {
        std::mt19937 random(seed);
        std::vector<PlainNode> nodes(static_cast<std::size_t>(2 + pick(random, 25)));
        for (std::size_t step = 0; step < 3 * nodes.size(); ++step) {
            PlainNode& from = pickOne(random, nodes);
            from.AddSuccessor(pick(random, 40) == 0 ? nullptr : &pickOne(random, nodes));
            for (int queries = pick(random, 4); queries > 0; --queries) {
                PlainNode& asked = pickOne(random, nodes);
                ASSERT_EQ(generator.GetLastNodeInFlow(&asked), endOfFlow(&asked)) << "seed " << seed;
            }
        }
    }
}

using Children = std::vector<VXMFabMBOMNode*>;

/// The direct form of the search in a list of children.
VXMFabMBOMNode* findAssignment(const Children& children, int id, const VXMFabMBOMNode* except) {
    const auto place = std::find_if(children.begin(), children.end(), [&](const VXMFabMBOMNode* child) {
        return child != except && child->GetID() == id && child->IsAssignment();
    });
    return place == children.end() ? nullptr : *place;
}

void expectEqual(VXMFabMBOMNode& parent, const Children& direct) {
    Children children;
    for (int position = 1; position <= parent.GetNumberOfSuccessors(); ++position) {
        children.push_back(parent.GetSuccessor(position));
    }
    ASSERT_EQ(children, direct);
}

TEST(ChildrenOfANode, IndexedEqualDirect) {
    for (unsigned seed = 1; seed <= 300 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        World world;
        std::deque<VXMFabMBOMNode> nodes;
        for (int index = 0; index < 60; ++index) {
            Thing& product = world.thing("P" + std::to_string(pick(random, 5)), kItem);
            const auto type = static_cast<VXMFabMBOMNode::AssignmentType>(1 + pick(random, 5));
            nodes.emplace_back(handle(product), 1, index, type, 1);
        }
        VXMFabMBOMNode parents[] = {{nullptr, 0, 0, VXMFabMBOMNode::AT_Top, 1},
                                    {nullptr, 0, 0, VXMFabMBOMNode::AT_Top, 1}};
        Children direct[2];
        const bool mayRepeat = seed % 2 == 0; // the same child twice, or under both parents
        for (int step = 0; step < 400; ++step) {
            const auto side = static_cast<std::size_t>(pick(random, 2));
            VXMFabMBOMNode& parent = parents[side];
            Children& list = direct[side];
            VXMFabMBOMNode* const node = &pickOne(random, nodes);
            const auto place = std::find(list.begin(), list.end(), node);
            const int position = pick(random, 62);
            const int choice = pick(random, 12);
            if (choice == 0) {
                parent.RemoveSuccessor(position);
                if (position >= 1 && position <= static_cast<int>(list.size())) {
                    list.erase(list.begin() + position - 1);
                }
            } else if (choice <= 2) {
                parent.RemoveSuccessor(node);
                list.erase(place, place == list.end() ? place : place + 1);
            } else if (choice == 3) {
                expectEqual(parent, list);
            } else if (choice <= 6) {
                ASSERT_EQ(parent.FindAssignment(node->GetID(), node), findAssignment(list, node->GetID(), node));
            } else if (const Children& other = direct[1 - side];
                       mayRepeat ||
                       (place == list.end() && std::find(other.begin(), other.end(), node) == other.end())) {
                parent.AddSuccessor(node);
                list.push_back(node);
            }
        }
        expectEqual(parents[0], direct[0]);
        expectEqual(parents[1], direct[1]);
    }
}

} // namespace
