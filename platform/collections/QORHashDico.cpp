#include "collections/QORHashDico.h"

QORHashDico::QORHashDico(int iSizeHint) {
    _positions.reserve(iSizeHint > 0 ? iSizeHint : 0);
}

void QORHashDico::Insert(const QORUnicodeString& iKey, void* iValue) {
    if (_positions.emplace(iKey, Size()).second) {
        _values.push_back(iValue);
    }
}

void* QORHashDico::Locate(const QORUnicodeString& iKey) const {
    const auto place = _positions.find(iKey);
    return place == _positions.end() ? nullptr : _values[place->second];
}

void* QORHashDico::NextItem(int& ioPosition, int& ioVisited) const {
    if (ioPosition >= Size()) {
        return nullptr;
    }
    ++ioVisited;
    return _values[ioPosition++];
}

void QORHashDico::RemoveAll() {
    _positions.clear();
    _values.clear();
}
