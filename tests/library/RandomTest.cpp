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
        rebuiltEqualsFreshAndTracedEqualsUntraced(kind, Algorithm::Legacy);
    }
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

} // namespace
