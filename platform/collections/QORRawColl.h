#pragma once

#include <algorithm>
#include <vector>

/// Growable array of plain values, positions from 1. Owns nothing that the values point to.
/// Reading where nothing stands gives the null value; removing there changes nothing.
template <class T>
class QORRawColl {
public:
    int Size() const { return static_cast<int>(_values.size()); }

    /// The value at iPosition, by value; null outside 1 to the count.
    T operator[](int iPosition) const { return Holds(iPosition) ? _values[iPosition - 1] : T(); }

    void Append(T iValue) { _values.push_back(iValue); }

    /// Puts iValue in the place of what stands at iPosition; does nothing outside 1 to the count.
    void Replace(int iPosition, T iValue) {
        if (Holds(iPosition)) {
            _values[iPosition - 1] = iValue;
        }
    }

    /// Removes the first entry of that value and gives the position that it had, 0 when there is none.
    int RemoveValue(T iValue) {
        const auto place = std::find(_values.begin(), _values.end(), iValue);
        if (place == _values.end()) {
            return 0;
        }
        const int position = static_cast<int>(place - _values.begin()) + 1;
        _values.erase(place);
        return position;
    }

    void RemovePosition(int iPosition) {
        if (Holds(iPosition)) {
            _values.erase(_values.begin() + (iPosition - 1));
        }
    }

    void RemoveAll() { _values.clear(); }

    auto begin() const { return _values.begin(); }
    auto end() const { return _values.end(); }

private:
    bool Holds(int iPosition) const { return iPosition >= 1 && iPosition <= Size(); }

    std::vector<T> _values;
};

/// Array of ints.
using QORRawCollint = QORRawColl<int>;
