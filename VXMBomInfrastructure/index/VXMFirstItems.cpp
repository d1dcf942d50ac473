#include "VXMBomInfrastructure/index/VXMFirstItems.h"

namespace {

constexpr int kNoCircle = -1;

} // namespace

std::optional<QORBaseUnknown_var> VXMFirstItems::Find(const QORBaseUnknown_var& iItem) {
    const QORBaseUnknown* const item = iItem.Impl();
    if (const int* const depth = _path.Find(item)) {
        _circleStart = *depth;
        return iItem;
    }
    const std::size_t* const settled = _settled.Find(item);
    return settled ? std::optional(_answers[*settled - 1].first) : std::nullopt;
}

VXMFirstItems::Step::Step(VXMFirstItems& ioItems, const QORBaseUnknown_var& iItem)
    : _items(ioItems), _item(iItem), _depth(ioItems._pathLength) {
    if (_depth == 0) {
        _items._circleStart = kNoCircle;
    }
    _items._path[_item.Impl()] = _depth;
    ++_items._pathLength;
}

VXMFirstItems::Step::~Step() {
    _items._path.Remove(_item.Impl());
    --_items._pathLength;
}

void VXMFirstItems::Step::Conclude(const QORBaseUnknown_var& iFirst) {
    if (!_items._keeps) {
        return;
    }
    const bool isOnCircle = _items._circleStart != kNoCircle && _depth > _items._circleStart;
    _items._answers.push_back({_item, isOnCircle ? _item : iFirst});
    std::size_t& settled = _items._settled[_item.Impl()];
    settled = settled == 0 ? _items._answers.size() : settled; // an earlier answer stays
}
