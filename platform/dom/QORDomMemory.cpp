#include "QORPlatform/dom/QORDomMemory.h"

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <algorithm>
#include <new>

namespace {

// The XML library takes 16 KB at first, then twice as much each time up to 512 KB. So pieces of this size are of
// documents that have half a megabyte already.
constexpr std::size_t kLargePiece = std::size_t{1} << 18;
constexpr std::size_t kLargestBlock = std::size_t{1} << 26;

} // namespace

QORDomMemory::~QORDomMemory() {
    for (Block* block = _blocks.next; block != &_blocks;) {
        Block* const next = block->next;
        ::operator delete(block);
        block = next;
    }
}

xercesc::MemoryManager* QORDomMemory::getExceptionMemoryManager() {
    return xercesc::XMLPlatformUtils::fgMemoryManager;
}

void* QORDomMemory::allocate(XMLSize_t iSize) {
    try {
        return iSize < kLargePiece ? TakeOfHeap(iSize) : TakeOfLargeMemory(iSize);
    } catch (const std::bad_alloc&) {
        throw xercesc::OutOfMemoryException();
    }
}

void* QORDomMemory::TakeOfHeap(std::size_t iSize) {
    auto* const block = new (::operator new(sizeof(Block) + iSize)) Block{_blocks.previous, &_blocks};
    _blocks.previous->next = block;
    _blocks.previous = block;
    return block + 1;
}

void* QORDomMemory::TakeOfLargeMemory(std::size_t iSize) {
    const std::size_t size = sizeof(Block) + (iSize + sizeof(Block) - 1) / sizeof(Block) * sizeof(Block);
    if (_large.empty() || _large.back().GetSize() - _used < size) {
        const std::size_t next = _large.empty() ? QORLargeMemory::kHugePage : 2 * _large.back().GetSize();
        _large.emplace_back(std::max(std::min(next, kLargestBlock), size));
        _used = 0;
    }
    auto* const block = new (_large.back().GetBegin() + _used) Block{nullptr, nullptr};
    _used += size;
    return block + 1;
}

void QORDomMemory::deallocate(void* iMemory) {
    if (!iMemory) {
        return;
    }
    Block* const block = static_cast<Block*>(iMemory) - 1;
    if (!block->previous) {
        return;
    }
    block->previous->next = block->next;
    block->next->previous = block->previous;
    ::operator delete(block);
}
