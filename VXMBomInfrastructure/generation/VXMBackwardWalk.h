#pragma once

#include "VXMBomInfrastructure/index/VXMManyPaths.h"
#include "VXMBomInfrastructure/index/VXMOpenWays.h"

#include <optional>
#include <vector>

/// A walk over the flow graph from its end towards its starts, by calls that call themselves for what comes before a
/// step. In full form every step is taken once per path, in predecessor order; one that is on the present path isn't
/// entered again, so that loops end. In thinned form only those paths are walked on which a node is kept.
class VXMBackwardWalk {
public:
    using Form = VXMManyPaths::Form;
    using Calls = VXMManyPaths::Calls;

    explicit VXMBackwardWalk(const QORRawCollPV& iSteps) : _numbers(iSteps) {}
    VXMBackwardWalk(const VXMBackwardWalk&) = delete;
    VXMBackwardWalk& operator=(const VXMBackwardWalk&) = delete;

    /// Looks at what lies before the walk. A walk that shows every call enters steps also when it would reach nothing
    /// from there. Raises VXMTooManyNodes.
    void Prepare(VXMFabFlowNode& iEnd, const VXMManyPaths::Build& iBuild);

    /// A step that the walk takes, for as long as this lives; and steps before it that the walk has moved on to without
    /// coming back.
    class Visit {
    public:
        Visit(VXMBackwardWalk& ioWalk, VXMFabFlowNode& iStep);
        ~Visit();
        Visit(const Visit&) = delete;
        Visit& operator=(const Visit&) = delete;

        /// Asked once for each entry of the lists that are taken, in order: 0 when its node is to be made, else how
        /// many nodes, with structure, are left out.
        std::uint64_t LeavesOut() { return _thinned ? _thinned->LeavesOut() : 0; }

        /// Whether the walk goes on to a further step before this one, and to which; it may be null.
        bool GoesOn(VXMFabFlowNode*& oBefore);

        /// Takes the step that GoesOn gave last, in the place of a visit of its own, when nothing comes after that
        /// here: so a line of steps takes no stack. Gives whether it does.
        bool MovesOn(VXMFabFlowNode* iBefore);

    private:
        void Enter(int iNumber);
        void Leave(int iNumber);

        VXMBackwardWalk& _walk;
        VXMFabFlowNode* _step;
        int _number;
        int _position = 0;
        std::vector<int> _passed; // numbers of the steps from which the walk has moved on
        std::optional<VXMManyPaths::Visit> _thinned;
    };

private:
    bool Enters(const VXMFabFlowNode& iStep);

    VXMStepNumbers _numbers;
    std::vector<bool> _isOnPath; // by step number
    std::optional<VXMStepGraph> _graph;
    std::optional<VXMOpenWays> _ways;         // of a walk that may pass over steps
    std::optional<VXMManyPaths> _paths;       // of a walk in thinned form
    std::optional<VXMManyPaths::Visit> _next; // likewise: the visit that begins next
};
