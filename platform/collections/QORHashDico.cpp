#include "QORPlatform/collections/QORHashDico.h"

QORHashDico::QORHashDico(int iSizeHint) {
    _entries.reserve(iSizeHint > 0 ? iSizeHint : 0);
}

int QORHashDico::Find(const QORUnicodeString& iKey) const {
    return _positions.Find(
        iKey, [this](int iPosition) -> const auto& { return _entries[iPosition - 1].key; });
}

void QORHashDico::Insert(const QORUnicodeString& iKey, void* iValue) {
    if (Find(iKey) == 0) {
        _entries.push_back({iKey, iValue});
        _positions.Enter(iKey, Size());
    }
}

void* QORHashDico::Locate(const QORUnicodeString& iKey) const {
    const int position = Find(iKey);
    return position == 0 ? nullptr : _entries[position - 1].value;
}

void* QORHashDico::NextItem(int& ioPosition, int& ioVisited) const {
    if (ioPosition < 0 || ioPosition >= Size()) {
        return nullptr;
    }
    ++ioVisited;
    return _entries[ioPosition++].value;
}

void QORHashDico::RemoveAll() {
    _positions.Clear();
    _entries.clear();
}
