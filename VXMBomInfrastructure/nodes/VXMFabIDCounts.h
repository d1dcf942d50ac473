#pragma once

#include <unordered_map>

/// How many registered MBOM nodes of one assignment type bear an identity number.
class VXMFabIDCounts {
public:
    void Add(int iID) { ++_counts[iID]; }
    void Remove(int iID) {
        const auto place = _counts.find(iID);
        if (place != _counts.end() && --place->second == 0) {
            _counts.erase(place);
        }
    }
    bool Has(int iID) const { return _counts.contains(iID); }
    void RemoveAll() { _counts.clear(); }

private:
    std::unordered_map<int, int> _counts;
};
