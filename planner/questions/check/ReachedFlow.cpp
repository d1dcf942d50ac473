#include "planner/questions/check/ReachedFlow.h"

#include <unordered_map>

namespace planner {

/// The walk from the end backwards, each step once. A step is complete when all in front of it are.
class ReachedFlow::Walk {
public:
    explicit Walk(ReachedFlow& flow) : flow_(flow) {}

    void runFrom(VXMFabFlowNode* end) {
        enter(end);
        while (!open_.empty()) {
            goOn();
        }
    }

private:
    struct Open {
        VXMFabFlowNode* node;
        std::uint32_t walkPlace;
        int next = 1;
        std::vector<std::uint32_t> before = {};
    };
    static constexpr std::uint32_t kUnderWay = 0xFFFFFFFF;

    void enter(VXMFabFlowNode* node) {
        positions_.emplace(node, kUnderWay);
        open_.push_back({node, met_++});
    }

    void goOn() {
        Open& top = open_.back();
        if (top.next > top.node->GetNumberOfPredecessors()) {
            leave();
            return;
        }
        VXMFabFlowNode* const previous = top.node->GetPredecessor(top.next);
        const auto known = positions_.find(previous);
        if (known == positions_.end()) {
            enter(previous); // and look at it again when it is complete
            return;
        }
        ++top.next;
        if (known->second == kUnderWay) {
            flow_.hasLoop_ = true;
        } else {
            top.before.push_back(known->second);
        }
    }

    void leave() {
        Open& top = open_.back();
        positions_[top.node] = static_cast<std::uint32_t>(flow_.steps_.size());
        const auto* const object = static_cast<const FlowObject*>(ModelObject::behind(top.node->GetActivity()));
        flow_.objects_.insert(object);
        flow_.steps_.push_back({object, top.node, std::move(top.before), top.walkPlace});
        open_.pop_back();
    }

    ReachedFlow& flow_;
    std::unordered_map<const VXMFabFlowNode*, std::uint32_t> positions_;
    std::vector<Open> open_;
    std::uint32_t met_ = 0;
};

ReachedFlow::ReachedFlow(VXMBomGenerator& generator, const ModelObject& root) : generator_(generator) {
    const QORBaseUnknown_var handle(const_cast<ModelObject*>(&root));
    if (VXMFabFlowNode* const end = generator.GetLastNodeInFlow(generator.CheckUse(handle))) {
        Walk(*this).runFrom(end);
        steps_.back().paths = 1;
    }
    for (auto step = steps_.rbegin(); step != steps_.rend(); ++step) {
        for (const std::uint32_t previous : step->before) {
            steps_[previous].paths += step->paths;
        }
    }
}

bool ReachedFlow::counts(const ReachedStep& step, Relation relation) const {
    const auto type = [&] {
        switch (relation) {
        case Relation::FirstAssigned:
            return VXMFabMBOMNode::AT_FirstAssign;
        case Relation::Assigned:
            return VXMFabMBOMNode::AT_Process;
        case Relation::Removed:
            return VXMFabMBOMNode::AT_Remove;
        case Relation::Outputs:
            return VXMFabMBOMNode::AT_Create;
        default:
            return VXMFabMBOMNode::AT_Fastener;
        }
    }();
    return generator_.UseProducts(step.node, type) == 1;
}

const ObjectList* listOfStep(const FlowObject& step, Relation relation) {
    if (step.sort() != Sort::Resource) {
        return listOf(step, relation);
    }
    const Behaviour* const behaviour = static_cast<const Resource&>(step).behaviour();
    if (!behaviour || (relation != Relation::FirstAssigned && relation != Relation::Outputs)) {
        return nullptr;
    }
    return relation == Relation::Outputs ? &behaviour->outputs : &behaviour->assigned;
}

} // namespace planner
