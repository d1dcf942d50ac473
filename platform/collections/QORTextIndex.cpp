#include "QORPlatform/collections/QORTextIndex.h"

#include <utility>

namespace {

constexpr std::size_t kFirstSlots = 16;

} // namespace

void QORTextIndex::Enter(const QORUnicodeString& iText, int iPosition) {
    if (4 * static_cast<std::size_t>(_taken + 1) > 3 * _slots.size()) {
        Grow();
    }
    Place({HashOf(iText), iPosition});
    ++_size;
}

void QORTextIndex::Place(const Slot& iEntry) {
    std::size_t slot = iEntry.hash & (_slots.size() - 1);
    while (_slots[slot].position != kFree) {
        slot = (slot + 1) & (_slots.size() - 1);
    }
    _slots[slot] = iEntry;
    ++_taken;
}

void QORTextIndex::Grow() {
    std::size_t slots = kFirstSlots;
    while (slots < 2 * static_cast<std::size_t>(_size + 1)) {
        slots *= 2;
    }
    const std::vector<Slot> before = std::exchange(_slots, std::vector<Slot>(slots));
    _taken = 0;
    for (const Slot& entry : before) {
        if (entry.position > 0) {
            Place(entry);
        }
    }
}

void QORTextIndex::Remove(const QORUnicodeString& iText, int iPosition) {
    std::size_t slot = HashOf(iText) & (_slots.size() - 1);
    while (_slots[slot].position != iPosition) {
        slot = (slot + 1) & (_slots.size() - 1);
    }
    _slots[slot].position = kLeft;
    --_size;
}

void QORTextIndex::Clear() {
    _slots.clear();
    _size = 0;
    _taken = 0;
}
