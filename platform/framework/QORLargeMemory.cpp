#include "QORPlatform/framework/QORLargeMemory.h"

#include <cstdint>
#include <new>

#include <sys/mman.h>

namespace {

constexpr std::size_t kHugePage = QORLargeMemory::kHugePage;

#ifdef __SANITIZE_ADDRESS__
constexpr bool kIsHeapWatched = true;
#else
constexpr bool kIsHeapWatched = false;
#endif

bool IsMapped(std::size_t iSize) {
    return iSize >= kHugePage && !kIsHeapWatched;
}

std::size_t InHugePages(std::size_t iSize) {
    return (iSize + kHugePage - 1) / kHugePage * kHugePage;
}

/// Maps a multiple of huge pages where huge pages can be. The system aligns to small pages only, so one huge page more
/// is mapped, and what is over goes back.
void* Map(std::size_t iSize) {
    void* const mapped = mmap(nullptr, iSize + kHugePage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mapped == MAP_FAILED) {
        throw std::bad_alloc();
    }
    auto* const begin = static_cast<std::byte*>(mapped);
    const std::size_t before = (kHugePage - reinterpret_cast<std::uintptr_t>(mapped) % kHugePage) % kHugePage;
    if (before > 0) {
        munmap(begin, before);
    }
    munmap(begin + before + iSize, kHugePage - before);
    madvise(begin + before, iSize, MADV_HUGEPAGE); // a wish: where it can't be met, nothing is lost
    return begin + before;
}

} // namespace

QORLargeMemory::QORLargeMemory(std::size_t iSize)
    : _begin(static_cast<std::byte*>(Take(iSize))), _size(IsMapped(iSize) ? InHugePages(iSize) : iSize) {}

void* QORLargeMemory::Take(std::size_t iSize) {
    return IsMapped(iSize) ? Map(InHugePages(iSize)) : ::operator new(iSize);
}

void QORLargeMemory::GiveBack(void* iMemory, std::size_t iSize) noexcept {
    if (iMemory && IsMapped(iSize)) {
        munmap(iMemory, InHugePages(iSize));
    } else {
        ::operator delete(iMemory);
    }
}
