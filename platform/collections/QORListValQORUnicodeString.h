#pragma once

#include "QORPlatform/collections/QORTextIndex.h"

#include <vector>

/// List of texts, positions from 1. Looking a text up from the front costs the same at any size: an index of first
/// positions is made at the first such look-up in a long list, and kept until an entry leaves from the middle.
class QOR_EXPORT QORListValQORUnicodeString {
public:
    int Size() const { return static_cast<int>(_texts.size()); }

    /// The text at iPosition, an empty one outside 1 to the size. The reference holds until the list changes.
    const QORUnicodeString& operator[](int iPosition) const;

    void Append(QORUnicodeString iText);

    /// First position from iFrom on that holds the text, 0 when there is none.
    int Locate(const QORUnicodeString& iText, int iFrom = 1) const;

    /// Removes the first entry of that text and gives the position that it had, 0 when there is none.
    int RemoveValue(const QORUnicodeString& iText);
    void RemovePosition(int iPosition);

    /// Removes the entry and moves the last one into its place: for lists whose order means nothing.
    void RemovePositionUnordered(int iPosition);

    void RemoveAll();

    auto begin() const { return _texts.begin(); }
    auto end() const { return _texts.end(); }

private:
    int Scan(const QORUnicodeString& iText, int iFrom) const;
    void MakeIndex() const;
    int FindFirst(const QORUnicodeString& iText) const;

    std::vector<QORUnicodeString> _texts;
    mutable QORTextIndex _firstPositions;
    mutable bool _indexed = false;
};
