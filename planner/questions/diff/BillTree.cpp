#include "planner/questions/diff/BillTree.h"

#include "planner/model/Item.h"
#include "planner/text/ObjectText.h"

namespace planner {

std::size_t ShapeNumbers::Hash::operator()(const std::vector<std::uint32_t>& parts) const {
    std::size_t hash = parts.size();
    for (const std::uint32_t part : parts) {
        hash = (hash ^ part) * 0x9E3779B97F4A7C15ULL;
        hash ^= hash >> 29U;
    }
    return hash;
}

std::uint32_t ShapeNumbers::ofLabel(const BillElement& element) {
    const auto* const fastener = dynamic_cast<const Fastener*>(element.object);
    const std::string label = element.object->id() + '\0' + element.name + '\0' + element.tag + '\0' +
                              std::string(kindWord(*element.object)) + '\0' +
                              (fastener ? fastener->type.value_or("") : "");
    return labels_.emplace(label, static_cast<std::uint32_t>(labels_.size())).first->second;
}

std::uint32_t ShapeNumbers::ofSubtree(const std::vector<std::uint32_t>& parts) {
    return subtrees_.emplace(parts, static_cast<std::uint32_t>(subtrees_.size())).first->second;
}

std::vector<BillNode> treeOf(const Bill& bill, ShapeNumbers& numbers) {
    std::vector<BillNode> tree{{nullptr, 0, 0, 0, {}}};
    tree.reserve(bill.size() + 1);
    std::vector<std::uint32_t> open{0};
    for (const BillElement& element : bill) {
        open.resize(static_cast<std::size_t>(element.level));
        const auto position = static_cast<std::uint32_t>(tree.size());
        tree[open.back()].children.push_back(position);
        tree.push_back({&element, open.back(), numbers.ofLabel(element), 0, {}});
        open.push_back(position);
    }
    std::vector<std::uint32_t> parts;
    for (auto node = tree.rbegin(); node != tree.rend(); ++node) { // children come behind their parent
        parts.assign(1, node->label);
        for (const std::uint32_t child : node->children) {
            parts.push_back(tree[child].shape);
        }
        node->shape = numbers.ofSubtree(parts);
    }
    return tree;
}

} // namespace planner
