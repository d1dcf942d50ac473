#include "VXMBomInfrastructure/generation/VXMFirstItemSearch.h"

#include "QORPlatform/framework/QORModelIdentificator.h"

namespace {

constexpr int kNoLoop = -1;

int IdentityOf(const QORBaseUnknown_var& iItem) {
    return QORModelIdentificator(iItem->GetImpl(0)).GetIntId();
}

} // namespace

VXMFirstItemSearch::Step::Step(VXMFirstItemSearch& ioSearch, const QORBaseUnknown_var& iItem)
    : _search(ioSearch), _item(iItem), _id(IdentityOf(iItem)), _depth(static_cast<int>(ioSearch._path.size())) {
    if (_depth == 0) {
        _search._loopStart = kNoLoop;
    }
    _search._path.emplace(_id, _depth);
}

VXMFirstItemSearch::Step::~Step() {
    _search._path.erase(_id);
}

void VXMFirstItemSearch::Step::Conclude(const QORBaseUnknown_var& iFirst) {
    if (_search._keeps) {
        // A search that began at an item of the loop itself would have met that item first.
        const bool isOnLoop = _search._loopStart != kNoLoop && _depth > _search._loopStart;
        _search._answers.emplace(_id, isOnLoop ? _item : iFirst);
    }
}

std::optional<QORBaseUnknown_var> VXMFirstItemSearch::Find(const QORBaseUnknown_var& iItem) {
    const int id = IdentityOf(iItem);
    if (const auto met = _path.find(id); met != _path.end()) {
        _loopStart = met->second;
        return iItem;
    }
    const auto settled = _answers.find(id);
    return settled == _answers.end() ? std::nullopt : std::optional(settled->second);
}
