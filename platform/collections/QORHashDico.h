#pragma once

#include "QORPlatform/collections/QORTextIndex.h"

#include <vector>

/// Dictionary from text to plain pointer. Owns nothing that it points to.
class QOR_EXPORT QORHashDico {
public:
    /// iSizeHint is a first guess at the number of entries; more are taken all the same.
    explicit QORHashDico(int iSizeHint);

    /// Enters iValue under iKey. A key that is there keeps its entry.
    void Insert(const QORUnicodeString& iKey, void* iValue);

    /// The value under iKey, null when absent.
    void* Locate(const QORUnicodeString& iKey) const;

    /// Gives the values one after the other in order of insertion, null at the end. Begin with both cursors at 0 and
    /// hand them back unchanged.
    void* NextItem(int& ioPosition, int& ioVisited) const;

    int Size() const { return static_cast<int>(_entries.size()); }
    void RemoveAll();

private:
    struct Entry {
        QORUnicodeString key;
        void* value;
    };

    int Find(const QORUnicodeString& iKey) const;

    std::vector<Entry> _entries;
    QORTextIndex _positions;
};
