#pragma once

#include "QORPlatform/text/QORExport.h"

#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

/// A block of memory for what grows with the plan.
///
/// From kHugePage on it is mapped by itself, between bounds of huge pages, and the system is asked to back it with
/// those: millions of objects that are visited in turns are then found without a miss in the address tables, and memory
/// that is touched for the first time stops the process once in the place of 512 times. Where the system has no huge
/// pages it is memory like any other. Smaller blocks are the heap's. Under the sanitizers, who watch over the heap, all
/// of them are.
class QOR_EXPORT QORLargeMemory {
public:
    static constexpr std::size_t kHugePage = std::size_t{1} << 21;

    QORLargeMemory() = default;

    /// At least iSize bytes, aligned for anything, their content undefined. Raises std::bad_alloc.
    explicit QORLargeMemory(std::size_t iSize);
    QORLargeMemory(QORLargeMemory&& ioOther) noexcept
        : _begin(std::exchange(ioOther._begin, nullptr)), _size(std::exchange(ioOther._size, 0)) {}
    QORLargeMemory& operator=(QORLargeMemory&& ioOther) noexcept {
        std::swap(_begin, ioOther._begin);
        std::swap(_size, ioOther._size);
        return *this;
    }
    ~QORLargeMemory() { GiveBack(_begin, _size); }

    /// The same without an owner: GiveBack wants the size that Take was asked for, and ignores null.
    static void* Take(std::size_t iSize);
    static void GiveBack(void* iMemory, std::size_t iSize) noexcept;

    std::byte* GetBegin() const { return _begin; }
    std::byte* GetEnd() const { return _begin + _size; }
    std::size_t GetSize() const { return _size; }

private:
    std::byte* _begin = nullptr;
    std::size_t _size = 0;
};

/// Allocator for the containers of the standard library, for arrays that grow with the plan.
template <class T>
class QORLargeAllocator {
    static_assert(alignof(T) <= alignof(std::max_align_t));

public:
    using value_type = T;
    using is_always_equal = std::true_type;

    QORLargeAllocator() = default;
    template <class U>
    QORLargeAllocator(const QORLargeAllocator<U>&) {}

    T* allocate(std::size_t iCount) { return static_cast<T*>(QORLargeMemory::Take(iCount * kEach)); }
    void deallocate(T* iMemory, std::size_t iCount) noexcept { QORLargeMemory::GiveBack(iMemory, iCount * kEach); }

    friend bool operator==(const QORLargeAllocator&, const QORLargeAllocator&) { return true; }
    friend bool operator!=(const QORLargeAllocator&, const QORLargeAllocator&) { return false; }

private:
    static constexpr std::size_t kEach = sizeof(std::array<T, 1>); // T may be a pointer, whose own size is meant
};
