// Natural numbers without a bound, for counts of paths: a thousand forks and joins in a row have 2^1000.
//
// Only what counting asks for. The libraries of the system that know more abort the process where memory ends (GMP), or
// are a hundred megabytes of headers (Boost).

#pragma once

#include <compare>
#include <cstdint>
#include <vector>

class VXMNatural {
public:
    VXMNatural() = default;
    VXMNatural(std::uint64_t iValue) : _low(iValue) {} // NOLINT(google-explicit-constructor): 1 is a natural number

    VXMNatural& operator+=(const VXMNatural& iOther) {
        if (_high.empty() && iOther._high.empty() && _low + iOther._low >= _low) {
            _low += iOther._low;
            return *this;
        }
        return AddWords(iOther);
    }

    /// Takes away a number that is not larger than this one.
    VXMNatural& operator-=(const VXMNatural& iOther);

    std::strong_ordering operator<=>(const VXMNatural& iOther) const;
    bool operator==(const VXMNatural& iOther) const = default;

private:
    VXMNatural& AddWords(const VXMNatural& iOther);
    std::uint64_t Word(std::size_t iPlace) const { return iPlace < _high.size() ? _high[iPlace] : 0; }

    std::uint64_t _low = 0;
    std::vector<std::uint64_t> _high; // further words upwards, the last of them not 0
};
