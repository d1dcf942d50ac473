#include "VXMBomInfrastructure/index/VXMPathTree.h"

#include <algorithm>
#include <tuple>

namespace {

/// Where the items of each node begin, of items that are in the order of their nodes.
template <class Item>
std::vector<int> FindBegins(const std::vector<Item>& iItems, int iNodes) {
    std::vector<int> begins(static_cast<std::size_t>(iNodes) + 1, 0);
    for (const Item& item : iItems) {
        ++begins[static_cast<std::size_t>(item.node) + 1];
    }
    for (std::size_t node = 1; node < begins.size(); ++node) {
        begins[node] += begins[node - 1];
    }
    return begins;
}

} // namespace

int VXMPathTree::GoOn(int iNode, int iPosition) {
    const std::uint64_t key =
        std::uint64_t{static_cast<std::uint32_t>(iNode)} << 32U | static_cast<unsigned>(iPosition);
    const auto [entry, isNew] = _further.try_emplace(key, _size);
    if (isNew) {
        _links.push_back({iNode, iPosition, _size});
        ++_size;
    }
    return entry->second;
}

void VXMPathTree::Settle() {
    _further.clear();
    std::sort(_links.begin(), _links.end(), [](const Link& iLeft, const Link& iRight) {
        return std::tie(iLeft.node, iLeft.position) < std::tie(iRight.node, iRight.position);
    });
    _branchesBegin = FindBegins(_links, _size);
    for (const Link& link : _links) {
        _branches.push_back({link.position, link.further});
    }
    std::sort(_kept.begin(), _kept.end(), [](const Kept& iLeft, const Kept& iRight) {
        return std::tie(iLeft.node, iLeft.entry) < std::tie(iRight.node, iRight.entry);
    });
    _kept.erase(std::unique(_kept.begin(), _kept.end()), _kept.end());
    _entriesBegin = FindBegins(_kept, _size);
    for (const Kept& kept : _kept) {
        _entries.push_back(kept.entry);
    }
}
