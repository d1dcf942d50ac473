#include "QORPlatform/dom/QORDomMemory.h"

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include <new>

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
    void* const memory = ::operator new(sizeof(Block) + iSize, std::nothrow);
    if (!memory) {
        throw xercesc::OutOfMemoryException();
    }
    auto* const block = new (memory) Block{_blocks.previous, &_blocks};
    _blocks.previous->next = block;
    _blocks.previous = block;
    return block + 1;
}

void QORDomMemory::deallocate(void* iMemory) {
    if (!iMemory) {
        return;
    }
    Block* const block = static_cast<Block*>(iMemory) - 1;
    block->previous->next = block->next;
    block->next->previous = block->previous;
    ::operator delete(block);
}
