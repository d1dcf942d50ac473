// Both trees are gone through from the top, pair by pair, with the children of a pair paired by their objects; equal
// subtrees end the search. What finds no partner that way, with all below it, is sought on the other side among what is
// left there: found, it has moved; else it has come, or gone.

#include "planner/questions/diff/BillComparison.h"

#include <algorithm>
#include <deque>
#include <unordered_map>
#include <unordered_set>

namespace planner {

namespace {

using Kind = BillChange::Kind;
using Tree = std::vector<BillNode>;
using Position = std::uint32_t;

class Comparison {
public:
    Comparison(const Tree& before, const Tree& after)
        : before_(before), after_(after), isLeft_(before.size()), isNew_(after.size()) {}

    std::vector<PlacedChange> run() {
        compare(0, 0);
        for (const Position root : left_) {
            offerSubtree(root);
        }
        // Each of them, and what turns out to be new below it, in the order of the bill.
        std::vector<Position> open(new_.rbegin(), new_.rend());
        new_.clear();
        while (!open.empty()) {
            const Position node = open.back();
            open.pop_back();
            place(node, open);
        }
        tellWholes(before_, isLeft_, Kind::Gone);
        tellWholes(after_, isNew_, Kind::Added);
        for (PlacedChange& change : changes_) {
            change.wholesBefore += countAbove(before_, isLeft_, change.before);
            change.wholesAfter += countAbove(after_, isNew_, change.after);
        }
        std::stable_sort(changes_.begin(), changes_.end(), [](const PlacedChange& left, const PlacedChange& right) {
            return std::pair(left.change.kind, left.after) < std::pair(right.change.kind, right.after);
        });
        return std::move(changes_);
    }

private:
    const std::string& idOf(const Tree& tree, Position node) const { return tree[node].object()->id(); }

    void add(Kind kind, Position before, Position after, std::size_t elements = 1) {
        const BillNode& old = before_[before];
        const BillNode& now = after_[after];
        changes_.push_back({{kind,
                             old.object(),
                             now.object(),
                             before_[old.parent].object(),
                             after_[now.parent].object(),
                             elements,
                             {},
                             false},
                            before,
                            after});
    }

    /// Goes through a pair and all below it.
    void compare(Position before, Position after) {
        std::vector<std::pair<Position, Position>> open{{before, after}};
        while (!open.empty()) {
            const auto [old, now] = open.back();
            open.pop_back();
            if (before_[old].shape == after_[now].shape) {
                takeSubtree(old);
                continue;
            }
            compareLabels(old, now);
            pairChildren(old, now, open);
        }
    }

    void compareLabels(Position old, Position now) {
        if (old == 0 || before_[old].label == after_[now].label || !told_.insert(after_[now].object()).second) {
            return;
        }
        const bool isRenamed = before_[old].element->name != after_[now].element->name;
        if (isRenamed) {
            add(Kind::Renamed, old, now);
        }
        if (!isRenamed || !isSameKind(*before_[old].element, *after_[now].element)) {
            add(Kind::Altered, old, now);
        }
    }

    /// Whether two elements differ in their names alone.
    static bool isSameKind(const BillElement& old, const BillElement& now) {
        ShapeNumbers numbers;
        BillElement renamed = old;
        renamed.name = now.name;
        return numbers.ofLabel(renamed) == numbers.ofLabel(now);
    }

    void pairChildren(Position old, Position now, std::vector<std::pair<Position, Position>>& open) {
        std::unordered_map<std::string_view, std::deque<Position>> waiting;
        for (const Position child : before_[old].children) {
            if (!isTaken(child)) {
                waiting[idOf(before_, child)].push_back(child);
            }
        }
        const std::size_t first = open.size();
        Position last = 0;
        bool isInOrder = true;
        for (const Position child : after_[now].children) {
            const auto found = waiting.find(idOf(after_, child));
            if (found == waiting.end() || found->second.empty()) {
                new_.push_back(child);
                continue;
            }
            const Position partner = found->second.front();
            found->second.pop_front();
            isInOrder = isInOrder && partner > last;
            last = partner;
            take(partner);
            open.emplace_back(partner, child);
        }
        std::reverse(open.begin() + static_cast<std::ptrdiff_t>(first), open.end());
        if (!isInOrder) {
            add(Kind::Reordered, old, now);
        }
        if (!isOffered_) {
            const std::size_t known = left_.size();
            for (const auto& [id, rest] : waiting) {
                left_.insert(left_.end(), rest.begin(), rest.end());
            }
            std::sort(left_.begin() + static_cast<std::ptrdiff_t>(known), left_.end());
        }
    }

    // What is left of the old bill, once the pairs from the top are known.

    void offerSubtree(Position root) {
        isOffered_ = true;
        visitSubtree(before_, root, [this](Position node) {
            isLeft_[node] = true;
            offered_[idOf(before_, node)].push_back(node);
        });
    }

    bool isTaken(Position node) const { return isOffered_ && !isLeft_[node]; }
    void take(Position node) { isLeft_[node] = false; }
    void takeSubtree(Position root) {
        if (isOffered_) {
            visitSubtree(before_, root, [this](Position node) { take(node); });
        }
    }

    /// Seeks a new element among what is left. What is below it comes next: paired, or on the stack in its order.
    void place(Position node, std::vector<Position>& open) {
        std::deque<Position>& known = offered_[idOf(after_, node)];
        while (!known.empty() && !isLeft_[known.front()]) {
            known.pop_front();
        }
        if (known.empty()) {
            isNew_[node] = true;
            open.insert(open.end(), after_[node].children.rbegin(), after_[node].children.rend());
            return;
        }
        const Position partner = known.front();
        take(partner);
        if (parentId(before_, partner) != parentId(after_, node)) {
            add(Kind::Moved, partner, node);
        }
        compare(partner, node);
        open.insert(open.end(), new_.rbegin(), new_.rend());
        new_.clear();
    }

    std::string_view parentId(const Tree& tree, Position node) const {
        const ModelObject* const parent = tree[tree[node].parent].object();
        return parent ? std::string_view(parent->id()) : std::string_view();
    }

    /// Tells the elements that are marked: each topmost one, with how many of those below it share its fate.
    void tellWholes(const Tree& tree, const std::vector<bool>& marks, Kind kind) {
        std::vector<std::size_t> elements(tree.size(), 1);
        for (auto node = static_cast<Position>(tree.size() - 1); node > 0; --node) {
            const Position parent = tree[node].parent;
            if (marks[node] && marks[parent]) {
                elements[parent] += elements[node];
            }
        }
        for (Position node = 1; node < tree.size(); ++node) {
            if (marks[node] && !marks[tree[node].parent]) {
                kind == Kind::Gone ? add(kind, node, 0, elements[node]) : add(kind, 0, node, elements[node]);
            }
        }
    }

    /// How many elements right above one are marked, up to some.
    static std::uint32_t countAbove(const Tree& tree, const std::vector<bool>& marks, Position node) {
        constexpr std::uint32_t kMost = 20;
        std::uint32_t count = 0;
        for (Position above = tree[node].parent; marks[above] && count < kMost; above = tree[above].parent) {
            ++count;
        }
        return count;
    }

    template <class Visit>
    static void visitSubtree(const Tree& tree, Position root, Visit visit) {
        std::vector<Position> open{root};
        while (!open.empty()) {
            const Position node = open.back();
            open.pop_back();
            visit(node);
            open.insert(open.end(), tree[node].children.rbegin(), tree[node].children.rend());
        }
    }

    const Tree& before_;
    const Tree& after_;
    std::vector<Position> left_; // of the old bill, without a partner: whole subtrees
    std::vector<Position> new_;  // of the new bill, likewise
    bool isOffered_ = false;
    std::vector<bool> isLeft_;
    std::vector<bool> isNew_;
    std::unordered_map<std::string_view, std::deque<Position>> offered_;
    std::unordered_set<const ModelObject*> told_;
    std::vector<PlacedChange> changes_;
};

} // namespace

std::vector<PlacedChange> compareBills(const std::vector<BillNode>& before, const std::vector<BillNode>& after) {
    return Comparison(before, after).run();
}

} // namespace planner
