// From the flow graph to the MBOM: the graph is walked backwards from its end, and every step on the way makes one node
// per entry of each list that counts. The present build puts them all under the top node; the legacy one opens a level
// with the first output product of a step, under which the rest of the step and all that comes before it go.
//
// A step is taken once per path that leads from it to the end; one that is on the present path isn't entered again, so
// that loops end. The number runs along each path by itself and starts anew at each predecessor.

#include "QORPlatform/framework/QORDeepStack.h"
#include "VXMBomInfrastructure/VXMBomViewerTrace.h"
#include "VXMBomInfrastructure/generation/VXMBomComputation.h"
#include "VXMBomInfrastructure/generation/VXMBomGenerator.h"
#include "VXMBomInfrastructure/generation/VXMFlowLists.h"
#include "VXMBomInfrastructure/generation/VXMStructure.h"

#include <cstdint>

unsigned char VXMBomGenerator::UseProducts(VXMFabFlowNode* iFlowNode, AssignmentType iType) {
    if (!iFlowNode) {
        return 0;
    }
    if (iFlowNode->ParentIsStation() == 0) {
        return 1;
    }
    return iType == VXMFabMBOMNode::AT_FirstAssign && iFlowNode->GetNodeType() == VXMFabFlowNode::NT_LOADING ? 1 : 0;
}

namespace {

/// The walk that begins with the first call of a build; calls within it find it there.
class WalkUnderWay {
public:
    WalkUnderWay(VXMBomGenerator& ioGenerator, VXMFabFlowNode& iEnd, VXMStructure::Kind iKind)
        : _reading(ioGenerator), _walk(VXMBomComputation::Of(ioGenerator).backwardWalk), _isFirst(!_walk) {
        if (!_isFirst) {
            return;
        }
        const VXMBomComputation& computation = VXMBomComputation::Of(ioGenerator);
        const auto takes = [&ioGenerator](VXMFabFlowNode& iStep, VXMFabMBOMNode::AssignmentType iType) {
            return ioGenerator.UseProducts(&iStep, iType) != 0;
        };
        _walk.emplace(computation.graph.GetNodes());
        try {
            _walk->Prepare(
                iEnd, {computation.form,
                       VXMBomViewerTrace.IsActive() ? VXMBackwardWalk::Calls::Shown : VXMBackwardWalk::Calls::Hidden,
                       iKind, takes, static_cast<std::uint64_t>(ioGenerator.GetMaxNodes())});
        } catch (...) {
            _walk.reset();
            throw;
        }
    }
    ~WalkUnderWay() {
        if (_isFirst) {
            _walk.reset();
        }
    }
    WalkUnderWay(const WalkUnderWay&) = delete;
    WalkUnderWay& operator=(const WalkUnderWay&) = delete;

    VXMBackwardWalk& operator*() const { return *_walk; }

private:
    VXMModelReading _reading;
    std::optional<VXMBackwardWalk>& _walk;
    bool _isFirst;
};

/// One call of a build: the step that it takes, then those that it moves on to, and what both builds do alike with
/// them.
class StepBuild {
public:
    StepBuild(VXMBomGenerator& ioGenerator, VXMFabFlowNode& iStep, int iLevel, int iNumber, VXMStructure::Kind iKind)
        : _generator(ioGenerator), _step(&iStep), _level(iLevel), _number(iNumber), _kind(iKind),
          _walk(ioGenerator, iStep, iKind), _visit(*_walk, iStep) {}

    /// The level of the nodes that come from now on.
    void SetLevel(int iLevel) { _level = iLevel; }

    /// Makes the nodes of one list under a parent, each but a fastener with its structure. Gives the first of them,
    /// null when the list is empty or doesn't count.
    VXMFabMBOMNode* TakeList(const VXMFlowList& iList, VXMFabMBOMNode& iParent) {
        if (_generator.UseProducts(_step, iList.type) == 0) {
            return nullptr;
        }
        VXMFabMBOMNode* first = nullptr;
        const int count = (_step->*iList.count)();
        for (int position = 1; position <= count; ++position) {
            if (const std::uint64_t leftOut = _visit.LeavesOut()) {
                _number = static_cast<int>(static_cast<unsigned>(_number) + static_cast<unsigned>(leftOut));
                continue;
            }
            VXMFabMBOMNode& node = VXMAttachNode(_generator, iParent, (_step->*iList.entry)(position), _level,
                                                 _number++, iList.type, 1, _step);
            if (iList.type != VXMFabMBOMNode::AT_Fastener) {
                _number = VXMStructure(_generator, _kind).Expand(node, _level, _number);
            }
            first = first ? first : &node;
        }
        return first;
    }

    /// Calls iCall(step, number) for each step before this one that the walk goes on to. Moves on to the last of them
    /// in the place of a call where it can, and gives whether it has.
    template <class Call>
    bool MovesOn(Call iCall) {
        VXMFabFlowNode* before = nullptr;
        while (_visit.GoesOn(before)) {
            if (_visit.MovesOn(before)) {
                _step = before;
                return true;
            }
            QORCallDeep([&] { iCall(before, _number); });
        }
        return false;
    }

private:
    VXMBomGenerator& _generator;
    VXMFabFlowNode* _step;
    int _level;
    int _number;
    VXMStructure::Kind _kind;
    WalkUnderWay _walk;
    VXMBackwardWalk::Visit _visit;
};

} // namespace

void VXMBomGenerator::CreateMBOM(VXMFabFlowNode* iFlowNode, VXMFabMBOMNode* iParent, int iNumber) {
    constexpr const char* kCall = "--> VXMBomGenerator::CreateMBOM ";
    VXMBomViewerTrace.TraPutLN(kCall);
    if (!iFlowNode || !iParent) {
        return;
    }
    StepBuild step(*this, *iFlowNode, iParent->GetLevel() + 1, iNumber, VXMStructure::Kind::AssembliesAndProducts);
    for (bool goesOn = true; goesOn;) {
        for (const VXMFlowList& list : kVXMFlowLists) {
            VXMFabMBOMNode* const parent = list.type == VXMFabMBOMNode::AT_Create ? GetTopNode() : iParent;
            if (parent) {
                step.TakeList(list, *parent);
            }
        }
        goesOn = step.MovesOn([&](VXMFabFlowNode* iBefore, int iNext) { CreateMBOM(iBefore, iParent, iNext); });
        if (goesOn) {
            VXMBomViewerTrace.TraPutLN(kCall);
        }
    }
}

void VXMBomGenerator::CreateOldMBOM(VXMFabFlowNode* iFlowNode, VXMFabMBOMNode* iParent, int iNumber) {
    constexpr const char* kCall = "--> VXMBomGenerator::CreateOldMBOM ";
    VXMBomViewerTrace.TraPutLN(kCall);
    if (!iFlowNode || !iParent) {
        return;
    }
    StepBuild step(*this, *iFlowNode, iParent->GetLevel() + 1, iNumber, VXMStructure::Kind::AssembliesOnly);
    VXMFabMBOMNode* parent = iParent;
    for (bool goesOn = true; goesOn;) {
        for (const VXMFlowList& list : kVXMFlowLists) {
            VXMFabMBOMNode* const first = step.TakeList(list, *parent);
            if (list.type == VXMFabMBOMNode::AT_Create && first) {
                parent = first;
            }
        }
        goesOn = step.MovesOn([&](VXMFabFlowNode* iBefore, int iNext) { CreateOldMBOM(iBefore, parent, iNext); });
        if (goesOn) {
            VXMBomViewerTrace.TraPutLN(kCall);
            step.SetLevel(parent->GetLevel() + 1);
        }
    }
}
