#pragma once

#include "QORPlatform/text/QORUnicodeString.h"

#include <cstdint>
#include <vector>

/// Finds positions of texts that its owner keeps: a flat table of hashes and positions, without a copy of any text. The
/// owner says which text stands at a position and enters no text twice.
class QOR_EXPORT QORTextIndex {
public:
    /// The position whose text, as iTextAt(position) gives it, is iText; 0 when there is none.
    template <class TextAt>
    int Find(const QORUnicodeString& iText, TextAt iTextAt) const {
        return Match(HashOf(iText), [&](int iPosition) { return iTextAt(iPosition) == iText; });
    }

    /// Enters a text that stands at iPosition, from 1.
    void Enter(const QORUnicodeString& iText, int iPosition);

    /// Takes the text at iPosition out.
    void Remove(const QORUnicodeString& iText, int iPosition);

    int Size() const { return _size; }
    void Clear();

private:
    struct Slot {
        std::uint32_t hash = 0;
        int position = kFree;
    };
    static constexpr int kFree = 0;
    static constexpr int kLeft = -1;

    static std::uint32_t HashOf(const QORUnicodeString& iText) {
        return static_cast<std::uint32_t>(std::hash<QORUnicodeString>()(iText));
    }

    template <class IsIt>
    int Match(std::uint32_t iHash, IsIt iIsIt) const {
        for (std::size_t slot = iHash; !_slots.empty(); ++slot) {
            const Slot& entry = _slots[slot & (_slots.size() - 1)];
            if (entry.position == kFree) {
                break;
            }
            if (entry.position != kLeft && entry.hash == iHash && iIsIt(entry.position)) {
                return entry.position;
            }
        }
        return 0;
    }

    void Place(const Slot& iEntry);
    void Grow();

    std::vector<Slot> _slots; // a power of two, less than three quarters of them taken
    int _size = 0;
    int _taken = 0; // entries, and slots that were left
};
