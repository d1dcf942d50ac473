#pragma once

#include "planner/bill/Bill.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace planner {

/// Numbers for whatever is equal: labels, and subtrees by their label and the numbers of their children in order.
class ShapeNumbers {
public:
    std::uint32_t ofLabel(const BillElement& element);
    std::uint32_t ofSubtree(const std::vector<std::uint32_t>& parts);

private:
    struct Hash {
        std::size_t operator()(const std::vector<std::uint32_t>& parts) const;
    };

    std::unordered_map<std::string, std::uint32_t> labels_;
    std::unordered_map<std::vector<std::uint32_t>, std::uint32_t, Hash> subtrees_;
};

/// An element of a bill in its tree, by positions; position 0 is the top, element i stands at i + 1.
struct BillNode {
    const BillElement* element; ///< null at the top
    std::uint32_t parent;       ///< itself at the top
    std::uint32_t label;
    std::uint32_t shape; ///< equal for equal subtrees of all trees that share their numbers
    std::vector<std::uint32_t> children;

    const ModelObject* object() const { return element ? element->object : nullptr; }
};

/// The tree of a bill, which has to live as long.
std::vector<BillNode> treeOf(const Bill& bill, ShapeNumbers& numbers);

} // namespace planner
