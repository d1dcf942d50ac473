#include "QORPlatform/collections/QORListValQORUnicodeString.h"

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
    if (_indexed && FindFirst(_texts.back()) == 0) {
        _firstPositions.Enter(_texts.back(), Size());
    }
}

int QORListValQORUnicodeString::Locate(const QORUnicodeString& iText, int iFrom) const {
    if (iFrom > 1 || (!_indexed && Size() < kWorthAnIndex)) {
        return Scan(iText, iFrom);
    }
    if (!_indexed) {
        MakeIndex();
    }
    return FindFirst(iText);
}

int QORListValQORUnicodeString::FindFirst(const QORUnicodeString& iText) const {
    return _firstPositions.Find(
        iText, [this](int iPosition) -> const auto& { return _texts[iPosition - 1]; });
}

int QORListValQORUnicodeString::Scan(const QORUnicodeString& iText, int iFrom) const {
    const auto place = std::find(_texts.begin() + std::clamp(iFrom - 1, 0, Size()), _texts.end(), iText);
    return place == _texts.end() ? 0 : static_cast<int>(place - _texts.begin()) + 1;
}

void QORListValQORUnicodeString::MakeIndex() const {
    _firstPositions.Clear();
    for (int position = 1; position <= Size(); ++position) {
        if (FindFirst((*this)[position]) == 0) {
            _firstPositions.Enter((*this)[position], position);
        }
    }
    _indexed = true;
}

int QORListValQORUnicodeString::RemoveValue(const QORUnicodeString& iText) {
    const int position = Locate(iText);
    RemovePosition(position);
    return position;
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
    _indexed = _indexed && _firstPositions.Size() == last;
    if (_indexed) {
        _firstPositions.Remove((*this)[iPosition], iPosition);
        if (iPosition != last) {
            _firstPositions.Remove((*this)[last], last);
            _firstPositions.Enter((*this)[last], iPosition);
        }
    }
    std::swap(_texts[iPosition - 1], _texts[last - 1]);
    _texts.pop_back();
}

void QORListValQORUnicodeString::RemoveAll() {
    _texts.clear();
    _firstPositions.Clear();
    _indexed = false;
}
