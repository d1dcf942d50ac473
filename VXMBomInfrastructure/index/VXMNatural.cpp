#include "VXMBomInfrastructure/index/VXMNatural.h"

#include <algorithm>

namespace {

/// Adds a word and what is carried to it, and gives what is carried on.
std::uint64_t Add(std::uint64_t& ioWord, std::uint64_t iWord, std::uint64_t iCarried) {
    ioWord += iWord;
    const bool overflows = ioWord < iWord;
    ioWord += iCarried;
    return overflows || ioWord < iCarried ? 1 : 0;
}

std::uint64_t Subtract(std::uint64_t& ioWord, std::uint64_t iWord, std::uint64_t iCarried) {
    const bool underflows = ioWord < iWord || (ioWord == iWord && iCarried > 0);
    ioWord -= iWord + iCarried;
    return underflows ? 1 : 0;
}

} // namespace

VXMNatural& VXMNatural::AddWords(const VXMNatural& iOther) {
    std::uint64_t carried = Add(_low, iOther._low, 0);
    _high.resize(std::max(_high.size(), iOther._high.size()), 0);
    for (std::size_t place = 0; place < _high.size() && (carried > 0 || place < iOther._high.size()); ++place) {
        carried = Add(_high[place], iOther.Word(place), carried);
    }
    if (carried > 0) {
        _high.push_back(carried);
    }
    return *this;
}

VXMNatural& VXMNatural::operator-=(const VXMNatural& iOther) {
    std::uint64_t carried = Subtract(_low, iOther._low, 0);
    for (std::size_t place = 0; place < _high.size(); ++place) {
        carried = Subtract(_high[place], iOther.Word(place), carried);
    }
    while (!_high.empty() && _high.back() == 0) {
        _high.pop_back();
    }
    return *this;
}

std::strong_ordering VXMNatural::operator<=>(const VXMNatural& iOther) const {
    if (_high.size() != iOther._high.size()) {
        return _high.size() <=> iOther._high.size();
    }
    const auto differ = std::mismatch(_high.rbegin(), _high.rend(), iOther._high.rbegin());
    return differ.first == _high.rend() ? _low <=> iOther._low : *differ.first <=> *differ.second;
}
