#pragma once

#include "planner/questions/check/ReachedFlow.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace planner {

/// Something that happens at a step to some of 64 tokens that go along the flow. A token that was raised at a step is
/// there at every step to which a way leads from it, unless it was dropped on each such way.
struct TokenEvent {
    enum class Action : std::uint8_t {
        Ask,   ///< which of them are here: told to whoever asked
        Raise, ///< they are here from now on
        Drop   ///< they aren't any more
    };

    std::uint32_t step; ///< position in the flow
    std::uint8_t order; ///< lower comes first at the same step
    Action action;
    std::uint64_t tokens;
    std::uint32_t asker; ///< of an Ask: any number
};

/// Takes the events along the flow, and calls tell(asker, tokens that are here) for each that asks. Costs what lies
/// between the first event and the last; the buffer serves call after call.
template <class Tell>
void carryTokens(const ReachedFlow& flow, std::vector<TokenEvent>& events, std::vector<std::uint64_t>& buffer,
                 Tell tell) {
    if (events.empty()) {
        return;
    }
    std::sort(events.begin(), events.end(), [](const TokenEvent& left, const TokenEvent& right) {
        return left.step != right.step ? left.step < right.step : left.order < right.order;
    });
    const std::uint32_t first = events.front().step;
    buffer.resize(flow.steps().size());
    auto event = events.cbegin();
    for (std::uint32_t step = first; event != events.cend(); ++step) {
        std::uint64_t here = 0;
        for (const std::uint32_t before : flow.steps()[step].before) {
            here |= before >= first ? buffer[before] : 0;
        }
        for (; event != events.cend() && event->step == step; ++event) {
            switch (event->action) {
            case TokenEvent::Action::Ask:
                tell(event->asker, here & event->tokens);
                break;
            case TokenEvent::Action::Raise:
                here |= event->tokens;
                break;
            case TokenEvent::Action::Drop:
                here &= ~event->tokens;
                break;
            }
        }
        buffer[step] = here;
    }
}

} // namespace planner
