#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

/// Growable array for what is mostly one entry or none: it keeps the first kInside entries in itself, and goes to the
/// heap with more. For values that move without raising. Positions count from 0 here; iterators hold until the array
/// changes.
template <class T, int kInside = 1>
class QORFew {
    static_assert(std::is_nothrow_move_constructible_v<T>);
    static_assert(alignof(T) <= alignof(void*));

public:
    QORFew() noexcept = default;
    QORFew(const QORFew& iOther) : QORFew() {
        Reserve(iOther._size);
        for (const T& value : iOther) {
            push_back(value);
        }
    }
    QORFew(QORFew&& iOther) noexcept { TakeFrom(iOther); }
    QORFew& operator=(const QORFew& iOther) {
        QORFew copy(iOther);
        return *this = std::move(copy);
    }
    QORFew& operator=(QORFew&& iOther) noexcept {
        if (this != &iOther) {
            Empty();
            TakeFrom(iOther);
        }
        return *this;
    }
    ~QORFew() { Empty(); }

    std::size_t size() const { return static_cast<std::size_t>(_size); }
    bool empty() const { return _size == 0; }

    T* begin() { return Data(); }
    T* end() { return Data() + _size; }
    const T* begin() const { return const_cast<QORFew*>(this)->Data(); }
    const T* end() const { return begin() + _size; }
    T& operator[](std::size_t iPlace) { return Data()[iPlace]; }
    const T& operator[](std::size_t iPlace) const { return begin()[iPlace]; }

    void push_back(T iValue) {
        if (_size == _room) {
            Reserve(2 * _room);
        }
        ::new (static_cast<void*>(Data() + _size)) T(std::move(iValue));
        ++_size;
    }

    void erase(const T* iPlace) {
        std::move(Data() + (iPlace - begin()) + 1, end(), Data() + (iPlace - begin()));
        --_size;
        std::destroy_at(end());
    }

    void clear() {
        QORFew gone(std::move(*this)); // whoever is told of an entry's end finds the array empty
    }

private:
    T* Data() {
        return _room == kInside ? std::launder(reinterpret_cast<T*>(_inside)) : *reinterpret_cast<T**>(_inside);
    }

    void Reserve(int iRoom) {
        if (iRoom <= _room) {
            return;
        }
        T* const larger = std::allocator<T>().allocate(static_cast<std::size_t>(iRoom));
        std::uninitialized_move(begin(), end(), larger);
        std::destroy(begin(), end());
        FreeHeap();
        *reinterpret_cast<T**>(_inside) = larger;
        _room = iRoom;
    }

    void FreeHeap() {
        if (_room != kInside) {
            std::allocator<T>().deallocate(Data(), static_cast<std::size_t>(_room));
        }
    }

    /// Leaves nothing behind, as after construction.
    void Empty() {
        std::destroy(begin(), end());
        FreeHeap();
        _size = 0;
        _room = kInside;
    }

    /// Into an empty array that has no heap.
    void TakeFrom(QORFew& ioOther) noexcept {
        if (ioOther._room == kInside) {
            std::uninitialized_move(ioOther.begin(), ioOther.end(), Data());
            std::destroy(ioOther.begin(), ioOther.end());
        } else {
            *reinterpret_cast<T**>(_inside) = ioOther.Data();
        }
        _size = std::exchange(ioOther._size, 0);
        _room = std::exchange(ioOther._room, kInside);
    }

    static constexpr std::size_t kBytes = std::max(sizeof(std::array<T, kInside>), sizeof(void*));

    alignas(void*) std::byte _inside[kBytes]; // the entries, or a pointer to them
    int _size = 0;
    int _room = kInside;
};
