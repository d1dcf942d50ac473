// What makes the library fast, held against the direct forms that it stands for.

#include "library/RandomWorld.h"

#include "VXMBomInfrastructure/generation/VXMBomTree.h"
#include "VXMBomInfrastructure/index/VXMByObject.h"
#include "VXMBomInfrastructure/index/VXMFlowEnds.h"
#include "VXMBomInfrastructure/index/VXMNatural.h"
#include "VXMBomInfrastructure/index/VXMPlaces.h"
#include "VXMBomInfrastructure/index/VXMStations.h"
#include "VXMBomInfrastructure/index/VXMStepNumbers.h"
#include "VXMBomInfrastructure/model/QORISpecObject.h"

#include <algorithm>
#include <array>
#include <deque>
#include <map>
#include <set>

using namespace testmodel;

namespace {

using Nodes = std::vector<VXMFabMBOMNode*>;

Nodes nodesOf(const VXMPlaces& places) {
    Nodes nodes;
    for (int position = 1; position <= places.Size(); ++position) {
        nodes.push_back(places[position]);
    }
    return nodes;
}

/// Addresses to enter, which nothing looks behind.
VXMFabMBOMNode* address(int index) {
    static char places[200];
    return reinterpret_cast<VXMFabMBOMNode*>(&places[index]);
}

/// One change or question at random to both lists.
void stepOnBoth(std::mt19937& random, VXMPlaces& places, Nodes& plain, bool mayRepeat, bool saysFirst) {
    VXMFabMBOMNode* const node = address(pick(random, 200));
    const auto place = std::find(plain.begin(), plain.end(), node);
    const int position = pick(random, static_cast<int>(plain.size()) + 3);
    const bool isPosition = position >= 1 && position <= static_cast<int>(plain.size());
    switch (pick(random, 8)) {
    case 0:
        places.RemovePosition(position);
        if (isPosition) {
            plain.erase(plain.begin() + position - 1);
        }
        break;
    case 1:
    case 2:
        ASSERT_EQ(places.RemoveValue(node), place != plain.end());
        plain.erase(place, place == plain.end() ? place : place + 1);
        break;
    case 3:
        ASSERT_EQ(places.Holds(node), place != plain.end());
        break;
    case 4:
        ASSERT_EQ(places[position], isPosition ? plain[position - 1] : nullptr);
        break;
    default:
        if (mayRepeat || place == plain.end()) {
            places.Append(node, saysFirst ? VXMPlaces::Entry::First : VXMPlaces::Entry::MaybeAgain);
            plain.push_back(node);
        }
    }
}

TEST(Places, EqualAPlainList) {
    for (unsigned seed = 1; seed <= 400 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        VXMPlaces places;
        Nodes plain;
        for (int step = 0; step < 600; ++step) {
            stepOnBoth(random, places, plain, seed % 3 == 0, seed % 3 == 1);
            ASSERT_EQ(places.Size(), static_cast<int>(plain.size()));
            if (step % 50 == 0) {
                ASSERT_EQ(nodesOf(places), plain);
            }
        }
        ASSERT_EQ(nodesOf(places), plain);
    }
}

TEST(ByNumber, EqualsAMap) {
    std::mt19937 random(1);
    VXMByNumber<int> values;
    std::map<int, int> plain;
    for (int step = 0; step < 20000; ++step) {
        const int near = pick(random, 3000) - 5;
        const int number = std::array{near, (1 << 30) + near, static_cast<int>(random())}[pick(random, 3)];
        ASSERT_EQ(values.Get(number), plain.contains(number) ? plain[number] : 0);
        if (pick(random, 2) == 0) {
            values[number] = plain[number] = step;
        }
    }
    values.RemoveAll();
    EXPECT_EQ(values.Get(plain.begin()->first), 0);
}

TEST(ByObject, EqualsAMap) {
    std::mt19937 random(1);
    VXMByObject<int> values;
    std::map<const void*, int> plain;
    for (int step = 0; step < 20000; ++step) {
        const void* const object = address(pick(random, step < 10000 ? 200 : 5));
        const int* const found = values.Find(object);
        ASSERT_EQ(found != nullptr, plain.contains(object));
        ASSERT_TRUE(!found || *found == plain[object]);
        if (pick(random, 2) == 0) {
            values.Remove(object);
            plain.erase(object);
        } else {
            values[object] = plain[object] = step;
        }
    }
}

TEST(Naturals, AddSubtractAndCompareAcrossWords) {
    std::mt19937 random(1);
    for (int round = 0; round < 2000; ++round) {
        VXMNatural number(random());
        for (int doublings = pick(random, 200); doublings > 0; --doublings) {
            number += number;
        }
        VXMNatural sum = number;
        VXMNatural other(random() % 3);
        for (int doublings = pick(random, 200); doublings > 0; --doublings) {
            other += other;
            other += random() % 2;
        }
        sum += other;
        VXMNatural swapped = other;
        swapped += number;
        ASSERT_EQ(sum, swapped);
        ASSERT_EQ(sum > number, other > 0);
        sum -= other;
        ASSERT_EQ(sum, number);
        sum -= number;
        ASSERT_EQ(sum, 0);
    }
    VXMNatural word(~0ULL);
    word += 1;
    EXPECT_GT(word, ~0ULL);
    word -= 1;
    EXPECT_EQ(word, ~0ULL);
}

/// A vertex without a model object, as somebody else's subclass would be.
class PlainNode final : public VXMFabFlowNode {
public:
    explicit PlainNode(int number = -1) : VXMFabFlowNode(0, 0) { _number = number; }
    unsigned char IsAResourceFlowNode() override { return 0; }
};

TEST(EndsOfFlows, RememberedEqualWalked) {
    for (unsigned seed = 1; seed <= 600; ++seed) {
        std::mt19937 random(seed);
        VXMFlowEnds ends;
        EXPECT_EQ(ends.Find(nullptr), nullptr);
        std::vector<PlainNode> nodes(static_cast<std::size_t>(2 + pick(random, 25)));
        for (std::size_t step = 0; step < 3 * nodes.size(); ++step) {
            PlainNode& from = pickOne(random, nodes);
            from.AddSuccessor(pick(random, 40) == 0 ? nullptr : &pickOne(random, nodes));
            for (int queries = pick(random, 4); queries > 0; --queries) {
                PlainNode& asked = pickOne(random, nodes);
                ASSERT_EQ(ends.Find(&asked), VXMFlowEnds::Walk(&asked)) << "seed " << seed;
            }
        }
    }
}

TEST(StepNumbers, AreOneANode) {
    std::deque<PlainNode> nodes;
    QORRawCollPV list;
    for (const int number : {1, 2, 7, -1, 2, 6}) { // in the list, but not all at the place that they name
        list.Append(&nodes.emplace_back(number));
    }
    nodes.emplace_back(3);
    VXMStepNumbers numbers(list);
    std::set<int> given;
    for (int turn = 0; turn < 2; ++turn) {
        for (const PlainNode& node : nodes) {
            given.insert(numbers.NumberOf(node));
        }
    }
    EXPECT_EQ(given.size(), nodes.size());
    EXPECT_LT(*given.rbegin(), numbers.Size());
}

/// An activity in a random forest of parents, circles included, that raises when it is told to. All share a number.
class Climbed final : public QORBaseUnknown {
public:
    Climbed() { SetIdentity(1); }
    QORStatus QueryInterface(const QORInterfaceID& wanted, void** found) override {
        return isTyped ? QORAnswer(wanted, found, activity_, spec_) : QORAnswer(wanted, found, activity_);
    }
    QORUnicodeString GetName() { return {}; }
    QORStatus GetType(QORUnicodeString&) { return QOR_OK; }
    QORISPPAbstractActivity_var GetParent() {
        if (raises) {
            throw std::runtime_error("GetParent");
        }
        return QORISPPAbstractActivity_var(parent);
    }
    unsigned char IsOfType(const QORUnicodeString&) { return isStation ? 1 : 0; }

    QORBaseUnknown* parent = nullptr;
    bool isStation = false;
    bool isTyped = true;
    bool raises = false;

private:
    QORISPPAbstractActivityTie<Climbed> activity_{this};
    QORISpecObjectTie<Climbed> spec_{this};
};

TEST(Stations, RememberedEqualClimbed) {
    for (unsigned seed = 1; seed <= 300; ++seed) {
        std::mt19937 random(seed);
        std::deque<Climbed> activities(30);
        for (Climbed& activity : activities) {
            activity.parent = pick(random, 6) == 0 ? nullptr : &pickOne(random, activities);
            activity.isStation = pick(random, 12) == 0;
            activity.isTyped = pick(random, 5) != 0;
        }
        VXMStations stations;
        for (int question = 0; question < 60; ++question) {
            const QORISPPAbstractActivity_var asked(static_cast<QORBaseUnknown*>(&pickOne(random, activities)));
            Climbed& raising = pickOne(random, activities);
            raising.raises = true;
            try {
                stations.IsInStation(asked);
            } catch (const std::runtime_error&) {
                raising.raises = false; // leaves no half answer behind
            }
            raising.raises = false;
            ASSERT_EQ(stations.IsInStation(asked), VXMStations::Climb(asked)) << "seed " << seed;
        }
    }
}

enum class Shape { Structures, Nested, AnyOrder, Unnamed };

/// The same random tree for the same seed. Structures are as the build makes them; nested trees mix types; nodes may be
/// registered in any order; and some children may name no parent.
class RandomTree {
public:
    RandomTree(unsigned seed, Shape shape) : random_(seed), shape_(shape), generator_(nullptr) {
        generator_.GetBom(0);
        std::vector<VXMFabMBOMNode*> parents{generator_.GetTopNode()};
        const int count = 5 + pick(random_, 60);
        for (int number = 1; number <= count; ++number) {
            parents.push_back(&add(number, *pickParent(parents)));
        }
        if (shape >= Shape::AnyOrder) {
            std::shuffle(nodes_.begin(), nodes_.end(), random_);
        }
        for (VXMFabMBOMNode* node : nodes_) {
            generator_.AddMBOMNodeToList(node);
        }
        for (int index = 0; shape == Shape::Unnamed && index < 3; ++index) {
            pickOne(random_, nodes_)->RemovePredecessor();
        }
    }

    VXMBomGenerator& generator() { return generator_; }
    std::string text() { return treeText(*generator_.GetTopNode()); }

    /// A pass by its steps alone, which search: the loop reads its count once, and stays after a step that gave 1.
    void searchingPass(VXMFabMBOMNode::AssignmentType type,
                       unsigned char (VXMBomGenerator::*step)(VXMFabMBOMNode* node)) {
        Nodes nodes;
        std::copy_if(nodes_.begin(), nodes_.end(), std::back_inserter(nodes),
                     [type](const VXMFabMBOMNode* node) { return node->GetAT() == type; });
        std::size_t count = nodes.size();
        for (std::size_t index = 0; index < std::min(count, nodes.size());) {
            VXMFabMBOMNode* const node = nodes[index];
            const bool isNamed = node->GetPredecessor() != nullptr;
            const long living = livingNodes();
            const bool stays = (generator_.*step)(node) == 1;
            if (isNamed && livingNodes() < living) {
                std::erase(nodes, node);
                std::erase(nodes_, node);
            }
            stays ? --count : ++index;
        }
    }

private:
    static long livingNodes() { return QORLivingObjects()["VXMFabMBOMNode"]; }

    VXMFabMBOMNode* pickParent(const std::vector<VXMFabMBOMNode*>& parents) {
        return pick(random_, 3) == 0 ? parents.front() : pickOne(random_, parents);
    }

    VXMFabMBOMNode& add(int number, VXMFabMBOMNode& parent) {
        const bool inherits = shape_ == Shape::Structures && parent.GetAT() != VXMFabMBOMNode::AT_Top;
        const auto type = inherits ? parent.GetAT() : VXMFabMBOMNode::AssignmentType(1 + pick(random_, 5));
        Thing& product = world_.thing("P" + std::to_string(pick(random_, 6)), kItem);
        auto* const node = new VXMFabMBOMNode(handle(product), 1, number, type, pick(random_, 2) == 0 ? 1 : 0);
        parent.AddSuccessor(node);
        node->SetPredecessor(&parent);
        nodes_.push_back(node);
        return *node;
    }

    World world_;
    std::mt19937 random_;
    Shape shape_;
    VXMProcessBomGenerator generator_;
    Nodes nodes_;
};

using Type = VXMFabMBOMNode::AssignmentType;
using PassOperation = void (VXMBomGenerator::*)();
using StepOperation = unsigned char (VXMBomGenerator::*)(VXMFabMBOMNode* node);

TEST(Passes, EqualTheirStepsThatSearch) {
    const std::tuple<Type, PassOperation, StepOperation> passes[] = {
        {Type::AT_Remove, &VXMBomGenerator::CleanMBOM_RemoveAssignments, &VXMBomGenerator::CheckPreviousAssignments},
        {Type::AT_Process, &VXMBomGenerator::CleanMBOM_ProcessAssignments,
         &VXMBomGenerator::CheckPreviousFPAssignments}};
    std::size_t changed = 0;
    for (unsigned seed = 1; seed <= 1500 && !testing::Test::HasFailure(); ++seed) {
        for (const Shape shape : {Shape::Structures, Shape::Nested, Shape::AnyOrder, Shape::Unnamed}) {
            for (const auto& [type, pass, step] : passes) {
                RandomTree fast(seed, shape);
                RandomTree direct(seed, shape);
                const std::string before = fast.text();
                (fast.generator().*pass)();
                direct.searchingPass(type, step);
                ASSERT_EQ(fast.text(), direct.text()) << "type " << type << " of " << before << ", seed " << seed
                                                      << ", shape " << static_cast<int>(shape);
                changed += fast.text() == before ? 0 : 1;
            }
        }
    }
    EXPECT_GT(changed, 3000U);
}

} // namespace
