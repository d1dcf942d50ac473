#pragma once

#include "planner/flow/FlowGraph.h"

#include <optional>
#include <string>

namespace planner {

/// Steps and links of the largest flow that is drawn: arranging more takes minutes, and nobody finds his way in it.
inline constexpr std::size_t kDrawnSteps = 2000;
inline constexpr std::size_t kDrawnLinks = 4000;

/// A picture, or why there is none.
struct FlowPicture {
    std::string svg; ///< a whole document, without an XML declaration
    std::string error;
};

/// Draws a flow by Graphviz as writeDot tells it.
FlowPicture drawFlow(const FlowGraph& graph, const FlowObject& owner);

} // namespace planner
