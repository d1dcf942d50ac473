// What a recorder hears, and bills that end at a step.

#include "library/RandomWorld.h"

#include "VXMBomInfrastructure/generation/VXMBomRecorder.h"

#include <algorithm>
#include <map>
#include <set>

using namespace testmodel;

namespace {

/// Notes nodes by their numbers in the order in which they were made, and what became of each.
class Notes : public VXMBomRecorder {
public:
    struct Node {
        std::string name;
        std::string step; ///< empty for a part of a structure
        std::string fate; ///< "", "shown", or the reason and the partner's step
    };

    void Begin() override {
        places_.clear();
        nodes.clear();
    }
    void NodeMade(const VXMFabMBOMNode& node, const VXMFabFlowNode* step) override {
        EXPECT_TRUE(node.GetPredecessor());
        places_[&node] = nodes.size();
        nodes.push_back({text(node.GetName()), step ? text(step->GetName()) : "", ""});
    }
    void NodeGoes(const VXMFabMBOMNode& node, Reason reason, const VXMFabMBOMNode& partner) override {
        constexpr const char* kReasons[] = {"", "paired", "otherwise", "repeat", "below"};
        Node& gone = nodes.at(places_.at(&node));
        const Node& other = nodes.at(places_.at(&partner));
        EXPECT_EQ(gone.fate, "");
        EXPECT_TRUE(reason == R_BelowRepeat ? node.GetPredecessor() == &partner
                                            : reason == R_AssignedOtherwise || other.name == gone.name);
        gone.fate = std::string(kReasons[reason]) + ' ' + (other.step.empty() ? other.name : other.step);
    }
    void NodeShown(const VXMFabMBOMNode& node) override {
        Node& shown = nodes.at(places_.at(&node));
        EXPECT_EQ(shown.fate, "");
        shown.fate = "shown";
    }

    std::string all() const {
        std::string lines;
        for (const Node& node : nodes) {
            lines += (lines.empty() ? "" : ", ") + (node.step.empty() ? "below" : node.step) + ' ' + node.name +
                     (node.fate.empty() ? "" : ": " + node.fate);
        }
        return lines;
    }
    std::size_t shown() const {
        return static_cast<std::size_t>(
            std::count_if(nodes.begin(), nodes.end(), [](const Node& node) { return node.fate == "shown"; }));
    }

    std::vector<Node> nodes;

private:
    static std::string text(const QORString& name) { return static_cast<const char*>(name); }

    std::map<const VXMFabMBOMNode*, std::size_t> places_;
};

TEST(Recorder, HearsWhatBecameOfEachNode) {
    const struct {
        const char* plan;
        const char* heard;
    } cases[] = {
        {"S1: +P | S2: -P", "S2 P: paired S1, S1 P: paired S2"},
        {"S1: +P | S2: -P | S3: =P", "S3 P: paired S2, S2 P: paired S3, S1 P: shown"},
        {"S1: +P | S2: +P", "S2 P: shown, S1 P: repeat S2"},
        {"S1: +P | S2: =P", "S2 P: otherwise S1, S1 P: shown"},
        {"S1: =P | S2", "S1 P"},
        {"S1: -P | S2", "S1 P"},
        {"S1: >A(P) | S2: +A", "S2 A: shown, below P: shown, S1 A: repeat S2, below P: below S1"},
        {"S1: +P | S2: >A(P)", "S2 A: shown, below P: shown, S1 P: repeat P"},
    };
    for (const auto& each : cases) {
        World world;
        const auto generator = makeGenerator(drawPlan(world, each.plan), Root::Process, Algorithm::Present);
        Notes notes;
        generator->SetRecorder(&notes);
        generator->GetBom(1);
        EXPECT_EQ(notes.all(), each.heard) << each.plan;
    }
}

TEST(Recorder, HearsOfEveryElementAndChangesNothing) {
    std::set<std::string> reasons;
    for (const Root kind : {Root::Process, Root::Resource}) {
        for (const Algorithm algorithm : {Algorithm::Present, Algorithm::Legacy}) {
            for (unsigned seed = 1; seed <= 300; ++seed) {
                SCOPED_TRACE(seed);
                std::mt19937 random(seed);
                World world;
                const auto generator = makeGenerator(drawRandom(world, random, kind), kind, algorithm);
                const std::string bare = bomText(generator->GetBom(1));
                Notes notes;
                generator->SetRecorder(&notes);
                EXPECT_EQ(bomText(generator->GetBom(1)), bare);
                EXPECT_EQ(notes.shown(), static_cast<std::size_t>(generator->GetPreviewObjects().Size()));
                for (const Notes::Node& node : notes.nodes) {
                    reasons.insert(node.fate.substr(0, node.fate.find(' ')));
                }
                generator->SetRecorder(nullptr);
                generator->GetBom(1);
            }
        }
    }
    EXPECT_EQ(reasons.size(), 6U);
}

TEST(EndOfFlow, ShowsWhatIsThereOnceTheStepIsFinished) {
    const struct {
        const char* plan;
        const char* step;
        const char* bom;
    } cases[] = {
        {"S1: +P | S2: -P | S3: +Q", "S1", "P"},
        {"S1: +P | S2: -P | S3: +Q", "S2", ""},
        {"S1: +P | S2: -P | S3: +Q", "S3", "Q"},
    };
    for (const auto& each : cases) {
        World world;
        const auto generator = makeGenerator(drawPlan(world, each.plan), Root::Process, Algorithm::Present);
        generator->SetEndOfFlow(handle(world[each.step]));
        EXPECT_EQ(bomText(generator->GetBom(1)), each.bom) << each.plan << " at " << each.step;
    }
}

TEST(EndOfFlow, AtTheLastStepIsTheBill) {
    for (unsigned seed = 1; seed <= 300; ++seed) {
        std::mt19937 random(seed);
        World world;
        Thing& root = drawRandom(world, random, Root::Process);
        const auto generator = makeGenerator(root, Root::Process, Algorithm::Present);
        const std::string bill = bomText(generator->GetBom(1));
        VXMFabFlowNode* const end = generator->GetLastNodeInFlow(generator->CheckUse(handle(root)));
        if (!end || !end->GetActivity()) {
            continue;
        }
        generator->SetEndOfFlow(end->GetActivity());
        EXPECT_EQ(bomText(generator->GetBom(1)), bill) << "seed " << seed;
        generator->SetEndOfFlow(QORBaseUnknown_var());
        EXPECT_EQ(bomText(generator->GetBom(1)), bill) << "seed " << seed;
    }
}

} // namespace
