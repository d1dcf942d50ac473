#include "support/Allocations.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr long kNever = std::numeric_limits<long>::max();

long turnsLeft = kNever;
bool lasts = false;
bool hasFailed = false;
long blocks = 0;

bool fails() {
    if (turnsLeft == kNever || --turnsLeft > 0) {
        return false;
    }
    hasFailed = true;
    turnsLeft = lasts ? 1 : kNever;
    return true;
}

} // namespace

namespace allocations {

void failAt(long turn, Failure failure) {
    turnsLeft = turn;
    lasts = failure == Failure::Lasting;
    hasFailed = false;
}

bool stopFailing() {
    turnsLeft = kNever;
    return hasFailed;
}

long living() {
    return blocks;
}

} // namespace allocations

// Arrays and the forms that don't raise come here in the standard library's own way.

void* operator new(std::size_t size) {
    void* const block = fails() ? nullptr : std::malloc(size > 0 ? size : 1);
    if (!block) {
        throw std::bad_alloc();
    }
    ++blocks;
    return block;
}

void operator delete(void* block) noexcept {
    blocks -= block ? 1 : 0;
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    operator delete(block);
}
