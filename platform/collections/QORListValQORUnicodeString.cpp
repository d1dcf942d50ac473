#include "collections/QORListValQORUnicodeString.h"

#include <algorithm>

namespace {

constexpr int kWorthAnIndex = 16;

} // namespace

const QORUnicodeString& QORListValQORUnicodeString::operator[](int iPosition) const {
    static const QORUnicodeString none;
    return iPosition >= 1 && iPosition <= Size() ? _texts[iPosition - 1] : none;
}

void QORListValQORUnicodeString::Append(QORUnicodeString iText) {
    _texts.push_back(std::move(iText));
    if (_indexed) {
        _firstPositions.emplace(_texts.back(), Size());
    }
}

int QORListValQORUnicodeString::Locate(const QORUnicodeString& iText, int iFrom) const {
    if (iFrom > 1 || (!_indexed && Size() < kWorthAnIndex)) {
        return Scan(iText, iFrom);
    }
    if (!_indexed) {
        MakeIndex();
    }
    const auto place = _firstPositions.find(iText);
    return place == _firstPositions.end() ? 0 : place->second;
}

int QORListValQORUnicodeString::Scan(const QORUnicodeString& iText, int iFrom) const {
    const auto place = std::find(_texts.begin() + std::clamp(iFrom - 1, 0, Size()), _texts.end(), iText);
    return place == _texts.end() ? 0 : static_cast<int>(place - _texts.begin()) + 1;
}

void QORListValQORUnicodeString::MakeIndex() const {
    _firstPositions.clear();
    for (int position = 1; position <= Size(); ++position) {
        _firstPositions.emplace((*this)[position], position);
    }
    _indexed = true;
}

void QORListValQORUnicodeString::RemovePosition(int iPosition) {
    if (iPosition < 1 || iPosition > Size()) {
        return;
    }
    _indexed = false;
    _texts.erase(_texts.begin() + (iPosition - 1));
}

void QORListValQORUnicodeString::RemovePositionUnordered(int iPosition) {
    if (iPosition < 1 || iPosition > Size()) {
        return;
    }
    const int last = Size();
    // Only without repeats is it known that each text's first position is its only one.
    _indexed = _indexed && _firstPositions.size() == _texts.size();
    if (_indexed) {
        _firstPositions[(*this)[last]] = iPosition;
        _firstPositions.erase((*this)[iPosition]);
    }
    std::swap(_texts[iPosition - 1], _texts[last - 1]);
    _texts.pop_back();
}

void QORListValQORUnicodeString::RemoveAll() {
    _texts.clear();
    _firstPositions.clear();
    _indexed = false;
}
