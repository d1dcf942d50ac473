// Items share their parts, so that a structure has far more occurrences than there are items. They are counted on the
// graph of the items: each component, which is an item by itself or a loop, after all that lead to it, so that the
// number of its occurrences is complete when it is passed on. Only in a loop ways are followed one by one.

#include "planner/questions/kits/Structure.h"

#include "planner/questions/check/Loops.h"

#include "QORPlatform/framework/QORDeepStack.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace planner {

namespace {

/// Steps on the ways through a component above which what is in it is countless.
constexpr std::size_t kMostSteps = 100'000;

class PartCounter {
public:
    explicit PartCounter(const std::vector<KitItem>& wholes) {
        for (const KitItem& whole : wholes) {
            addTo(opened_[vertexOf(*whole.item)], whole.number);
        }
        for (std::size_t vertex = 0; vertex < items_.size(); ++vertex) {
            if (const ObjectList* const parts = structureOf(*items_[vertex].item)) {
                for (const ModelObject* part : *parts) {
                    graph_.targets.push_back(vertexOf(*part));
                }
            }
            graph_.endVertex();
        }
        onPath_.resize(items_.size());
    }

    std::vector<KitItem> run() {
        components_ = componentsOf(graph_);
        std::vector<std::vector<std::uint32_t>> members(components_.count);
        for (std::uint32_t vertex = 0; vertex < graph_.size(); ++vertex) {
            members[components_.of[vertex]].push_back(vertex);
        }
        std::for_each(members.rbegin(), members.rend(), [this](const auto& each) { passOn(each); });
        std::erase_if(items_, [](const KitItem& each) { return each.number == 0; });
        return std::move(items_);
    }

private:
    struct Open {
        std::uint32_t vertex;
        std::size_t edge;
    };

    static void addTo(std::size_t& sum, std::size_t number) { sum = sumOf(sum, number); }

    std::uint32_t vertexOf(const ModelObject& item) {
        const auto [found, isNew] = vertices_.try_emplace(&item, static_cast<std::uint32_t>(items_.size()));
        if (isNew) {
            items_.push_back({&item});
            opened_.push_back(0);
        }
        return found->second;
    }

    void passOn(const std::vector<std::uint32_t>& component) {
        steps_ = 0;
        const bool isCounted = std::all_of(component.begin(), component.end(),
                                           [this](std::uint32_t vertex) { return follow(vertex, opened_[vertex]); });
        for (std::size_t i = 0; !isCounted && i < component.size(); ++i) {
            const std::uint32_t vertex = component[i];
            for (std::size_t edge = graph_.beginOf(vertex); edge < graph_.ends[vertex]; ++edge) {
                count(vertex, graph_.targets[edge], kCountless);
            }
        }
    }

    /// Counts a part of something that is opened so many times. One outside its component is opened in its turn.
    void count(std::uint32_t whole, std::uint32_t part, std::size_t times) {
        addTo(items_[part].number, times);
        if (!isInside(whole, part)) {
            addTo(opened_[part], times);
        }
    }

    bool isInside(std::uint32_t whole, std::uint32_t part) const {
        return components_.of[whole] == components_.of[part];
    }

    /// Goes all ways through the component of a vertex from there on. Gives whether they could be followed.
    bool follow(std::uint32_t start, std::size_t times) {
        std::vector<Open> open;
        if (times > 0) {
            enter(start, open);
        }
        while (!open.empty() && steps_ <= kMostSteps) {
            Open& top = open.back();
            if (top.edge == graph_.ends[top.vertex]) {
                onPath_[top.vertex] = false;
                open.pop_back();
                continue;
            }
            steps_ += open.size() > 1 ? 1 : 0;
            const std::uint32_t whole = top.vertex;
            const std::uint32_t part = graph_.targets[top.edge++];
            count(whole, part, times);
            if (isInside(whole, part) && !onPath_[part]) {
                enter(part, open);
            }
        }
        return open.empty();
    }

    void enter(std::uint32_t vertex, std::vector<Open>& open) {
        onPath_[vertex] = true;
        open.push_back({vertex, graph_.beginOf(vertex)});
    }

    std::unordered_map<const ModelObject*, std::uint32_t> vertices_;
    std::vector<KitItem> items_;      // by vertex, with how often they occur as parts
    std::vector<std::size_t> opened_; // by vertex, how often it is come to from outside its component
    Graph graph_;
    Components components_;
    std::vector<bool> onPath_;
    std::size_t steps_ = 0;
};

/// A walk down a structure.
class StructureWalk {
public:
    explicit StructureWalk(const std::function<void(const ModelObject&, int)>& visit) : visit_(visit) {}

    /// Gives whether the walk may go on.
    bool open(const ModelObject& whole, int level) {
        const ObjectList* const parts = structureOf(whole);
        if (!parts || parts->empty() || !onPath_.insert(&whole).second) {
            return true;
        }
        for (const ModelObject* part : *parts) {
            if (visited_++ == kMostParts) {
                return false;
            }
            visit_(*part, level);
            bool goesOn = true;
            QORCallDeep([&] { goesOn = open(*part, level + 1); });
            if (!goesOn) {
                return false;
            }
        }
        onPath_.erase(&whole);
        return true;
    }

private:
    const std::function<void(const ModelObject&, int)>& visit_;
    std::unordered_set<const ModelObject*> onPath_;
    std::size_t visited_ = 0;
};

} // namespace

std::size_t sumOf(std::size_t left, std::size_t right) {
    return std::min(left + right, kCountless);
}

std::vector<KitItem> partsOf(const std::vector<KitItem>& wholes) {
    return PartCounter(wholes).run();
}

bool visitStructure(const ModelObject& item, const std::function<void(const ModelObject& part, int level)>& visit) {
    return StructureWalk(visit).open(item, 1);
}

} // namespace planner
