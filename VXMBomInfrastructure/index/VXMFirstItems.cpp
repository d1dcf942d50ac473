#include "VXMBomInfrastructure/index/VXMFirstItems.h"

namespace {

constexpr int kNoCircle = -1;

} // namespace

std::optional<QORBaseUnknown_var> VXMFirstItems::Find(const QORBaseUnknown_var& iItem) {
    if (const auto met = _path.find(iItem.Impl()); met != _path.end()) {
        _circleStart = met->second;
        return iItem;
    }
    const auto settled = _answers.find(iItem.Impl());
    return settled == _answers.end() ? std::nullopt : std::optional(settled->second.first);
}

VXMFirstItems::Step::Step(VXMFirstItems& ioItems, const QORBaseUnknown_var& iItem)
    : _items(ioItems), _item(iItem), _depth(static_cast<int>(ioItems._path.size())) {
    if (_depth == 0) {
        _items._circleStart = kNoCircle;
    }
    _items._path.emplace(_item.Impl(), _depth);
}

VXMFirstItems::Step::~Step() {
    _items._path.erase(_item.Impl());
}

void VXMFirstItems::Step::Conclude(const QORBaseUnknown_var& iFirst) {
    if (_items._keeps) {
        const bool isOnCircle = _items._circleStart != kNoCircle && _depth > _items._circleStart;
        _items._answers.emplace(_item.Impl(), Answer{_item, isOnCircle ? _item : iFirst});
    }
}
