// Stack segments for deep recursions.
//
// The lower end of the present segment is known, so a check is one comparison. When less than the reserve is left, the
// call goes on a new segment: the contexts are switched, the call runs there to its end, and the segment goes back to a
// small store. An exception is caught at the seam and raised again on the caller's side, since no unwinder crosses one.

#include "QORPlatform/framework/QORDeepStack.h"

#include <cstdint>
#include <exception>
#include <new>
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

constexpr std::size_t kSegmentSize = std::size_t{1} << 20;
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

/// A mapped stack with a page below it that can't be touched.
class Segment {
public:
    Segment() : _memory(mmap(nullptr, kSegmentSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)) {
        if (_memory == MAP_FAILED) {
            throw std::bad_alloc();
        }
        if (mprotect(_memory, GuardSize(), PROT_NONE) != 0) {
            munmap(_memory, kSegmentSize);
            throw std::bad_alloc();
        }
    }
    Segment(Segment&& iOther) noexcept : _memory(iOther._memory) { iOther._memory = MAP_FAILED; }
    Segment& operator=(Segment&&) = delete;
    ~Segment() {
        if (_memory != MAP_FAILED) {
            munmap(_memory, kSegmentSize);
        }
    }

    char* Low() const { return static_cast<char*>(_memory) + GuardSize(); }
    static std::size_t Size() { return kSegmentSize - GuardSize(); }

private:
    static std::size_t GuardSize() { return static_cast<std::size_t>(sysconf(_SC_PAGESIZE)); }

    void* _memory;
};

/// The thread's store of segments. Its room is made beforehand: what comes back from a segment mustn't fail.
std::vector<Segment>& KeptSegments() {
    thread_local std::vector<Segment> kept = [] {
        std::vector<Segment> room;
        room.reserve(kKeptSegments);
        return room;
    }();
    return kept;
}

Segment TakeSegment() {
    auto& kept = KeptSegments();
    if (kept.empty()) {
        return Segment();
    }
    Segment segment(std::move(kept.back()));
    kept.pop_back();
    return segment;
}

void KeepSegment(Segment iSegment) {
    if (KeptSegments().size() < kKeptSegments) {
        KeptSegments().push_back(std::move(iSegment));
    }
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

__attribute__((noinline)) void SwitchTo([[maybe_unused]] const Segment& iSegment, Seam& ioSeam) {
#ifdef QOR_SWITCHES_ARE_ANNOUNCED
    __sanitizer_start_switch_fiber(&ioSeam.callerFake, iSegment.Low(), Segment::Size());
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
    Segment segment = TakeSegment();
    Seam seam{};
    seam.call = iCall;
    seam.context = iContext;
    getcontext(&seam.callee);
    seam.callee.uc_stack.ss_sp = segment.Low();
    seam.callee.uc_stack.ss_size = Segment::Size();
    seam.callee.uc_link = &seam.caller;
    const auto address = reinterpret_cast<std::uintptr_t>(&seam);
    makecontext(&seam.callee, reinterpret_cast<void (*)()>(&RunOnSegment), 2, static_cast<unsigned>(address >> 32U),
                static_cast<unsigned>(address));

    const std::uintptr_t callerLowEnd = LowEnd();
    LowEnd() = reinterpret_cast<std::uintptr_t>(segment.Low());
    SwitchTo(segment, seam);
    LowEnd() = callerLowEnd;

    KeepSegment(std::move(segment));
    if (seam.raised) {
        std::rethrow_exception(seam.raised);
    }
}
