// The cleaning passes on random trees, held against the same rules in their plainest form: lists that are searched from
// the front, nodes that call themselves.

#include "library/RandomWorld.h"

#include <algorithm>
#include <array>
#include <set>

using namespace testmodel;

namespace {

struct Node {
    int number;
    int id;
    VXMFabMBOMNode::AssignmentType type;
    bool removable;
    Node* parent = nullptr;
    std::vector<Node*> children{};
};

bool isAssignment(const Node& node) {
    return node.type == VXMFabMBOMNode::AT_FirstAssign || node.type == VXMFabMBOMNode::AT_Process;
}

/// The tree, its registries and the passes, each as a person would do it by hand.
class PlainTree {
public:
    Node& add(Node node) {
        Node& added = nodes_.emplace_back(std::move(node));
        registered_[added.type].push_back(&added);
        if (added.parent) {
            added.parent->children.push_back(&added);
        }
        return added;
    }

    /// Takes out the nodes of a type that have a partner, and the partners where they are to go as well.
    void assignments(VXMFabMBOMNode::AssignmentType type, bool withPartner) {
        std::vector<Node*>& nodes = registered_[type];
        std::size_t count = nodes.size();
        for (std::size_t index = 0; index < count;) {
            Node& node = *nodes[index];
            Node* const partner = findPartner(node);
            if (!partner) {
                ++index;
                continue;
            }
            if (withPartner) {
                remove(*partner, false);
            }
            remove(node, false);
            --count;
        }
    }

    /// Takes out removable repeats below a node, themselves alone or whole, and goes on with what stays.
    void repeats(Node& node, std::set<int>& met, bool whole, bool isDeep) {
        std::size_t count = node.children.size();
        for (std::size_t index = 0; index < count;) {
            Node& child = *node.children[index];
            if (child.removable && met.contains(child.id)) {
                remove(child, whole);
                --count;
                continue;
            }
            met.insert(child.id);
            if (isDeep) {
                repeats(child, met, true, true);
            }
            ++index;
        }
    }

    void repeatsAmongSiblings(Node& node) {
        std::set<int> met;
        repeats(node, met, false, false);
        for (Node* child : node.children) {
            repeatsAmongSiblings(*child);
        }
    }

    std::string treeText(const Node& node) const {
        std::string text;
        for (const Node* child : node.children) {
            const std::string below = treeText(*child);
            text += text.empty() ? "" : " ";
            text += std::to_string(child->number);
            text += below.empty() ? "" : "(" + below + ")";
        }
        return text;
    }

private:
    bool isAssigned(int id) const {
        const auto bearsId = [id](const Node* node) {
            return node->id == id;
        };
        const auto& first = registered_[VXMFabMBOMNode::AT_FirstAssign];
        const auto& process = registered_[VXMFabMBOMNode::AT_Process];
        return std::any_of(first.begin(), first.end(), bearsId) || std::any_of(process.begin(), process.end(), bearsId);
    }

    Node* findPartner(const Node& node) const {
        if (!isAssigned(node.id)) {
            return nullptr;
        }
        for (Node* sibling : node.parent->children) {
            if (sibling != &node && sibling->id == node.id && isAssignment(*sibling)) {
                return sibling;
            }
        }
        return findBelow(node);
    }

    static Node* findBelow(const Node& node) {
        for (Node* child : node.children) {
            if (child->id == node.id && isAssignment(*child)) {
                return child;
            }
            if (Node* const found = findBelow(*child)) {
                return found;
            }
        }
        return nullptr;
    }

    void remove(Node& node, bool whole) {
        std::erase(node.parent->children, &node);
        std::erase(registered_[node.type], &node);
        for (Node* child : std::vector<Node*>(node.children)) {
            if (whole) {
                remove(*child, true);
            } else {
                child->parent = node.parent;
                node.parent->children.push_back(child);
            }
        }
    }

    std::deque<Node> nodes_;
    std::array<std::vector<Node*>, 6> registered_;
};

enum class Shape { Flat, Nested, Any };

/// One random tree in both forms.
class BothTrees {
public:
    BothTrees(std::mt19937& random, Shape shape)
        : generator_(nullptr), top_(plain_.add({0, -1, VXMFabMBOMNode::AT_Top, true})) {
        for (int id = 1; id <= 5; ++id) {
            world_.thing("P" + std::to_string(id), kItem);
        }
        generator_.GetBom(0);
        std::vector<std::pair<Node*, VXMFabMBOMNode*>> made{{&top_, generator_.GetTopNode()}};
        for (int count = pick(random, shape == Shape::Flat ? 60 : 40); count > 0; --count) {
            const bool isBelowTop = shape == Shape::Flat ? pick(random, 3) != 0 : pick(random, 3) == 0;
            const auto parent = isBelowTop ? made.front() : pickOne(random, made);
            made.push_back(addBelow(parent, random, shape, static_cast<int>(made.size())));
        }
    }

    void run(Algorithm algorithm) {
        generator_.CleanMBOM_RemoveAssignments();
        plain_.assignments(VXMFabMBOMNode::AT_Remove, true);
        expectEqual("removals");
        QORHashDico met(10);
        std::set<int> plainMet;
        VXMFabMBOMNode* const top = generator_.GetTopNode();
        if (algorithm == Algorithm::Older) {
            generator_.CleanMBOM_1(top, met);
            plain_.repeats(top_, plainMet, false, true);
            expectEqual("second pass");
            generator_.CleanMBOM_2(top);
            plain_.repeatsAmongSiblings(top_);
        } else {
            generator_.CleanMBOM_ProcessAssignments();
            plain_.assignments(VXMFabMBOMNode::AT_Process, false);
            expectEqual("second pass");
            generator_.CleanMBOM_3(top, met);
            plain_.repeats(top_, plainMet, true, true);
        }
        expectEqual("third pass");
    }

private:
    std::pair<Node*, VXMFabMBOMNode*> addBelow(std::pair<Node*, VXMFabMBOMNode*> parent, std::mt19937& random,
                                               Shape shape, int number) {
        const bool inherits = parent.first != &top_ && shape != Shape::Any;
        const auto type =
            inherits ? parent.first->type : static_cast<VXMFabMBOMNode::AssignmentType>(1 + pick(random, 5));
        const int id = 1 + pick(random, 5);
        const bool removable = shape == Shape::Nested || (shape == Shape::Any ? pick(random, 2) == 0 : !inherits);
        Node& plain = plain_.add({number, id, type, removable, parent.first});
        const int level = parent.second->GetLevel() + 1;
        auto* const node = new VXMFabMBOMNode(handle(*world_.things()[static_cast<std::size_t>(id) - 1]), level, number,
                                              type, removable ? 1 : 0);
        generator_.AddMBOMNodeToList(node);
        parent.second->AddSuccessor(node);
        node->SetPredecessor(parent.second);
        return {&plain, node};
    }

    void expectEqual(const char* after) {
        EXPECT_EQ(testmodel::treeText(*generator_.GetTopNode()), plain_.treeText(top_)) << "after the " << after;
    }

    World world_;
    VXMProcessBomGenerator generator_;
    PlainTree plain_;
    Node& top_;
};

TEST(CleaningPasses, EqualTheirPlainForms) {
    for (unsigned seed = 1; seed <= 500 && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        for (const Shape shape : {Shape::Flat, Shape::Nested, Shape::Any}) {
            for (const Algorithm algorithm : {Algorithm::Present, Algorithm::Older}) {
                std::mt19937 random(seed);
                BothTrees(random, shape).run(algorithm);
            }
        }
    }
}

} // namespace
