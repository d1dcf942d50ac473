// A value for each of some objects.
//
// In place of: a hash map by address, which takes a piece of the heap for each entry.
// Why the same: an address has one entry or none, and nobody goes through the entries, so their order doesn't matter.
// What it gains: most maps of a walk hold a few entries at a time, which come and go with each step; those of a plan
// that is nested a million deep hold as many. The table keeps its entries in itself, so that the former touch nothing
// but a line of the cache, and the latter one place in large memory.

#pragma once

#include "QORPlatform/framework/QORLargeMemory.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <vector>

/// Values by address, probed in order. Looks into no object and holds none. A table that hasn't had an entry takes no
/// memory.
template <class T>
class VXMByObject {
    static_assert(std::is_trivially_destructible_v<T> && std::is_nothrow_move_assignable_v<T>);

public:
    VXMByObject() = default;
    VXMByObject(const VXMByObject&) = delete;
    VXMByObject& operator=(const VXMByObject&) = delete;

    /// The value of an object, null when it has none. The pointer holds until the table changes.
    T* Find(const void* iObject) {
        if (_count == 0) {
            return nullptr;
        }
        Slot& slot = SlotOf(iObject);
        return slot.object ? &slot.value : nullptr;
    }
    const T* Find(const void* iObject) const { return const_cast<VXMByObject*>(this)->Find(iObject); }

    /// The value of an object, T() when it had none. The reference holds until the table changes.
    T& operator[](const void* iObject) {
        if (4 * (_count + 1) > 3 * _slots.size()) {
            Grow();
        }
        Slot& slot = SlotOf(iObject);
        if (!slot.object) {
            slot.object = iObject;
            ++_count;
        }
        return slot.value;
    }

    /// Takes out the value of an object, if it has one.
    void Remove(const void* iObject) noexcept {
        if (!Find(iObject)) {
            return;
        }
        std::size_t gap = PlaceOf(iObject);
        // An entry behind the gap moves into it unless its own probing begins behind the gap.
        for (std::size_t place = Next(gap); _slots[place].object; place = Next(place)) {
            if (Distance(HomeOf(_slots[place].object), place) >= Distance(gap, place)) {
                _slots[gap] = _slots[place];
                gap = place;
            }
        }
        _slots[gap] = Slot();
        --_count;
    }

private:
    struct Slot {
        const void* object = nullptr; // null where nothing stands
        T value{};
    };
    using Slots = std::vector<Slot, QORLargeAllocator<Slot>>;

    std::size_t Next(std::size_t iPlace) const { return (iPlace + 1) & (_slots.size() - 1); }
    std::size_t Distance(std::size_t iFrom, std::size_t iTo) const { return (iTo - iFrom) & (_slots.size() - 1); }

    std::size_t HomeOf(const void* iObject) const {
        return (reinterpret_cast<std::uintptr_t>(iObject) * 0x9E3779B97F4A7C15U >> 20U) & (_slots.size() - 1);
    }

    /// Where the object stands, or where it would.
    std::size_t PlaceOf(const void* iObject) const {
        std::size_t place = HomeOf(iObject);
        while (_slots[place].object && _slots[place].object != iObject) {
            place = Next(place);
        }
        return place;
    }
    Slot& SlotOf(const void* iObject) { return _slots[PlaceOf(iObject)]; }

    void Grow() {
        constexpr std::size_t kSmallest = 8;
        Slots before(_slots.empty() ? kSmallest : 2 * _slots.size());
        _slots.swap(before);
        for (const Slot& slot : before) {
            if (slot.object) {
                SlotOf(slot.object) = slot;
            }
        }
    }

    Slots _slots; // a power of two, a quarter of them free; or none
    std::size_t _count = 0;
};
