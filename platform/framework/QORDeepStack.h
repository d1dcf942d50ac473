#pragma once

#include "QORPlatform/text/QORExport.h"

#include <cstddef>
#include <type_traits>

/// A recursion whose depth the model decides mustn't be bounded by the thread's stack. QORCallDeep makes one call of
/// it: directly while there is room, else on a further stack segment from the heap. Exceptions pass through. What is
/// called between two such calls finds at least kReserve bytes of stack, on whatever thread.
class QOR_EXPORT QORDeepStack {
public:
    /// Stack in bytes that foreign code may count on: what a model needs to answer, say.
    static constexpr std::size_t kReserve = std::size_t{256} << 10;

    /// Whether the present segment has room for what runs until the next check.
    static bool HasRoom();

    /// Calls iCall(iContext) on a further segment; raises std::bad_alloc when there is none to be had.
    static void CallOnSegment(void (*iCall)(void*), void* iContext);
};

template <class Call>
void QORCallDeep(Call&& iCall) {
    if (QORDeepStack::HasRoom()) {
        iCall();
        return;
    }
    using Plain = std::remove_reference_t<Call>;
    QORDeepStack::CallOnSegment([](void* iContext) { (*static_cast<Plain*>(iContext))(); }, &iCall);
}
