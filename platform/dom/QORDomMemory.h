#pragma once

#include "QORPlatform/framework/QORLargeMemory.h"

#include <xercesc/framework/MemoryManager.hpp>

#include <cstddef>
#include <vector>

/// Memory of one document. What the XML library doesn't give back, as when it fails halfway through a document's
/// making, goes with this. A large document takes large memory, all of which goes with it: what is given back of that
/// before isn't used again.
class QORDomMemory final : public xercesc::MemoryManager {
public:
    QORDomMemory() = default;
    ~QORDomMemory() override;
    QORDomMemory(const QORDomMemory&) = delete;
    QORDomMemory& operator=(const QORDomMemory&) = delete;

    /// Exceptions outlive the document.
    xercesc::MemoryManager* getExceptionMemoryManager() override;

    /// Raises the XML library's OutOfMemoryException, which it counts on.
    void* allocate(XMLSize_t iSize) override;
    void deallocate(void* iMemory) override;

private:
    /// Head of a block. A document takes its memory in large pieces, so there are few.
    struct alignas(std::max_align_t) Block {
        Block* previous; // null in large memory
        Block* next;
    };

    void* TakeOfHeap(std::size_t iSize);
    void* TakeOfLargeMemory(std::size_t iSize);

    Block _blocks{&_blocks, &_blocks}; // a ring, with this one between last and first
    std::vector<QORLargeMemory> _large;
    std::size_t _used = 0; // of the last of them
};
