#pragma once

#include <xercesc/framework/MemoryManager.hpp>

#include <cstddef>

/// Memory of one document. What the XML library doesn't give back, as when it fails halfway through a document's
/// making, goes with this.
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
        Block* previous;
        Block* next;
    };

    Block _blocks{&_blocks, &_blocks}; // a ring, with this one between last and first
};
