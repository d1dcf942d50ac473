#pragma once

#include <cstdint>

namespace planner {

class FlowObject;

/// A directed link of the flow. It has its place in the plan's list, and the views of both its ends name it.
struct Link {
    FlowObject* from;
    FlowObject* to;

    // Kept by the list that the link is in.
    Link* previous = nullptr;
    Link* next = nullptr;
    std::uint64_t order = 0; ///< grows along the list
};

} // namespace planner
