// Stack segments for deep recursions.
//
// The lower end of the present segment is known, so a check is one comparison. When less than the reserve is left, the
// call goes on a new segment: the contexts are switched, the call runs there to its end, and the segment goes back to a
// small store. An exception is caught at the seam and raised again on the caller's side, since no unwinder crosses one.
//
// The deeper a recursion is already, the larger its next segment. Large ones have huge pages where there are any: a
// recursion a million levels deep touches half a gigabyte for the first time.

#include "QORPlatform/framework/QORDeepStack.h"

#include "QORPlatform/framework/QORLargeMemory.h"

#include <cstdint>
#include <exception>
#include <new>
#include <optional>
#include <utility>
#include <vector>

#include <pthread.h>
#include <sys/mman.h>
#include <ucontext.h>
#include <unistd.h>

// What g++ says of itself, and what clang is asked.
#ifdef __SANITIZE_ADDRESS__
#define QOR_SWITCHES_ARE_ANNOUNCED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define QOR_SWITCHES_ARE_ANNOUNCED 1
#endif
#endif
#ifdef QOR_SWITCHES_ARE_ANNOUNCED
#include <sanitizer/common_interface_defs.h>
#endif

namespace {

constexpr std::size_t kSmallSegment = std::size_t{1} << 20;
constexpr std::size_t kLargestSegment = std::size_t{1} << 26;
constexpr std::size_t kSmallSegmentsInUse = 4; // from there on they grow
constexpr std::size_t kHugePage = QORLargeMemory::kHugePage;
// What QORDeepStack promises to what is called, and what our own functions need around it.
constexpr std::uintptr_t kRoomWanted = QORDeepStack::kReserve + (std::uintptr_t{64} << 10);
constexpr std::size_t kKeptSegments = 4;

/// Where this thread's stack can't be learned the present address, so that the next call goes on a segment.
std::uintptr_t LowEndOfThreadStack() {
    pthread_attr_t attributes;
    void* base = __builtin_frame_address(0);
    std::size_t size = 0;
    if (pthread_getattr_np(pthread_self(), &attributes) != 0) {
        return reinterpret_cast<std::uintptr_t>(base);
    }
    pthread_attr_getstack(&attributes, &base, &size);
    pthread_attr_destroy(&attributes);
    return reinterpret_cast<std::uintptr_t>(base);
}

/// Low end of the segment that this thread runs on.
std::uintptr_t& LowEnd() {
    thread_local std::uintptr_t lowEnd = LowEndOfThreadStack();
    return lowEnd;
}

/// A mapped stack with memory below it that can't be touched.
class Segment {
public:
    explicit Segment(std::size_t iSize)
        : _size(iSize), _guard(iSize > kSmallSegment ? kHugePage : static_cast<std::size_t>(sysconf(_SC_PAGESIZE))),
          _memory(mmap(nullptr, _guard + Mapped(), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)) {
        if (_memory == MAP_FAILED) {
            throw std::bad_alloc();
        }
        if (mprotect(_memory, static_cast<std::size_t>(Low() - static_cast<char*>(_memory)), PROT_NONE) != 0) {
            munmap(_memory, _guard + Mapped());
            throw std::bad_alloc();
        }
        if (_size > kSmallSegment) {
            madvise(Low(), _size, MADV_HUGEPAGE); // a wish: where it can't be met, nothing is lost
        }
    }
    Segment(Segment&& ioOther) noexcept
        : _size(ioOther._size), _guard(ioOther._guard), _memory(std::exchange(ioOther._memory, MAP_FAILED)) {}
    Segment& operator=(Segment&& ioOther) noexcept {
        std::swap(_size, ioOther._size);
        std::swap(_guard, ioOther._guard);
        std::swap(_memory, ioOther._memory);
        return *this;
    }
    ~Segment() {
        if (_memory != MAP_FAILED) {
            munmap(_memory, _guard + Mapped());
        }
    }

    /// The lower end of the stack: where a huge page may begin, in a large one.
    char* Low() const {
        const auto address = reinterpret_cast<std::uintptr_t>(_memory);
        return static_cast<char*>(_memory) + (2 * _guard - address % _guard);
    }
    std::size_t Size() const { return _size; }

private:
    /// What is mapped besides a guard: the lower end is moved up by one and less than another.
    std::size_t Mapped() const { return _guard + _size; }

    std::size_t _size;
    std::size_t _guard; // least size of what can't be touched
    void* _memory;
};

/// The segments of a thread that nobody runs on. Giving one back never fails.
class Store {
public:
    Store() { _small.reserve(kKeptSegments); }

    Segment Take() {
        const std::size_t size = SizeOfNext();
        if (_large && _large->Size() == size) {
            Segment segment(std::move(*_large));
            _large.reset();
            ++_inUse;
            return segment;
        }
        if (size == kSmallSegment && !_small.empty()) {
            Segment segment(std::move(_small.back()));
            _small.pop_back();
            ++_inUse;
            return segment;
        }
        Segment segment(size);
        ++_inUse;
        return segment;
    }

    /// Of the large ones the one left last is kept, until the recursion is over: a loop at its depth may call again.
    void GiveBack(Segment iSegment) {
        --_inUse;
        if (iSegment.Size() > kSmallSegment) {
            _large = std::move(iSegment);
        } else if (_small.size() < kKeptSegments) {
            _small.push_back(std::move(iSegment));
        }
        if (_inUse == 0) {
            _large.reset();
        }
    }

private:
    /// Small ones first, then each twice as large as the one before.
    std::size_t SizeOfNext() const {
        std::size_t size = kSmallSegment;
        for (std::size_t larger = kSmallSegmentsInUse; larger <= _inUse && size < kLargestSegment; ++larger) {
            size *= 2;
        }
        return size;
    }

    std::vector<Segment> _small;
    std::optional<Segment> _large;
    std::size_t _inUse = 0;
};

Store& SegmentStore() {
    thread_local Store store;
    return store;
}

struct Seam {
    void (*call)(void*);
    void* context;
    std::exception_ptr raised;
    ucontext_t caller;
    ucontext_t callee;
#ifdef QOR_SWITCHES_ARE_ANNOUNCED
    void* callerFake = nullptr;
    const void* callerLow = nullptr;
    std::size_t callerSize = 0;
#endif
};

void AnnounceArrival([[maybe_unused]] Seam& ioSeam) {
#ifdef QOR_SWITCHES_ARE_ANNOUNCED
    __sanitizer_finish_switch_fiber(nullptr, &ioSeam.callerLow, &ioSeam.callerSize);
#endif
}

void AnnounceReturn([[maybe_unused]] Seam& iSeam) {
#ifdef QOR_SWITCHES_ARE_ANNOUNCED
    __sanitizer_start_switch_fiber(nullptr, iSeam.callerLow, iSeam.callerSize);
#endif
}

/// First function on a new segment; makecontext passes ints only, so the seam's address comes in two halves.
void RunOnSegment(unsigned iHigh, unsigned iLow) {
    auto* const seam = reinterpret_cast<Seam*>((static_cast<std::uintptr_t>(iHigh) << 32U) | iLow);
    AnnounceArrival(*seam);
    try {
        seam->call(seam->context);
    } catch (...) {
        seam->raised = std::current_exception();
    }
    AnnounceReturn(*seam);
}

/// Runs the seam's call on the segment. By itself, since what stands beside a context may be kept in no register.
__attribute__((noinline)) void RunOn(const Segment& iSegment, Seam& ioSeam) {
    getcontext(&ioSeam.callee);
    ioSeam.callee.uc_stack.ss_sp = iSegment.Low();
    ioSeam.callee.uc_stack.ss_size = iSegment.Size();
    ioSeam.callee.uc_link = &ioSeam.caller;
    const auto address = reinterpret_cast<std::uintptr_t>(&ioSeam);
    makecontext(&ioSeam.callee, reinterpret_cast<void (*)()>(&RunOnSegment), 2, static_cast<unsigned>(address >> 32U),
                static_cast<unsigned>(address));
#ifdef QOR_SWITCHES_ARE_ANNOUNCED
    __sanitizer_start_switch_fiber(&ioSeam.callerFake, iSegment.Low(), iSegment.Size());
#endif
    swapcontext(&ioSeam.caller, &ioSeam.callee);
#ifdef QOR_SWITCHES_ARE_ANNOUNCED
    __sanitizer_finish_switch_fiber(ioSeam.callerFake, nullptr, nullptr);
#endif
}

} // namespace

bool QORDeepStack::HasRoom() {
    return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)) > LowEnd() + kRoomWanted;
}

void QORDeepStack::CallOnSegment(void (*iCall)(void*), void* iContext) {
    Segment segment = SegmentStore().Take();
    Seam seam{};
    seam.call = iCall;
    seam.context = iContext;

    const std::uintptr_t callerLowEnd = LowEnd();
    LowEnd() = reinterpret_cast<std::uintptr_t>(segment.Low());
    RunOn(segment, seam);
    LowEnd() = callerLowEnd;

    SegmentStore().GiveBack(std::move(segment));
    if (seam.raised) {
        std::rethrow_exception(seam.raised);
    }
}
