// Stands in for FlowSvg.cpp where the program is built without Graphviz.

#include "planner/flow/FlowSvg.h"

namespace planner {

FlowPicture drawFlow(const FlowGraph& /*graph*/, const FlowObject& /*owner*/) {
    return {{}, "flows can't be drawn: this planner was built without Graphviz"};
}

} // namespace planner
