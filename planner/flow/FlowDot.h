#pragma once

#include "planner/file/TextSink.h"
#include "planner/flow/FlowGraph.h"

namespace planner {

/// Writes a flow in the language of Graphviz. Steps inside of a step stand in a frame with its box. What lies on no way
/// to the end is pale and dashed, arrows of a loop are red, a ring marks the end. Each node has the id of its object as
/// tooltip, and the classes "step", "holder", "pale", "loop" and "end" say in an SVG what a thing is.
void writeDot(const FlowGraph& graph, const FlowObject& owner, TextSink& sink);

} // namespace planner
