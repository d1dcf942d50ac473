#include "planner/questions/explain/BillRecord.h"

namespace planner {

namespace {

Role roleOf(VXMFabMBOMNode::AssignmentType type) {
    switch (type) {
    case VXMFabMBOMNode::AT_FirstAssign:
        return Role::FirstAssigned;
    case VXMFabMBOMNode::AT_Process:
        return Role::Assigned;
    case VXMFabMBOMNode::AT_Remove:
        return Role::Removed;
    case VXMFabMBOMNode::AT_Create:
        return Role::PutOut;
    default:
        return Role::Joined;
    }
}

Fate fateOf(VXMBomRecorder::Reason reason) {
    switch (reason) {
    case VXMBomRecorder::R_Paired:
        return Fate::Paired;
    case VXMBomRecorder::R_AssignedOtherwise:
        return Fate::AssignedOtherwise;
    case VXMBomRecorder::R_Repeat:
        return Fate::Repeat;
    case VXMBomRecorder::R_BelowRepeat:
        break;
    }
    return Fate::BelowRepeat;
}

} // namespace

void BillRecord::Begin() {
    occurrences_.clear();
    rows_.clear();
    close();
}

void BillRecord::close() {
    places_ = {};
    shown_ = {};
}

void BillRecord::NodeMade(const VXMFabMBOMNode& node, const VXMFabFlowNode* step) {
    const auto place = static_cast<std::uint32_t>(occurrences_.size());
    Occurrence made{ModelObject::behind(node.GetProduct()), nullptr, Occurrence::kNone, Occurrence::kNone,
                    roleOf(node.GetAssignmentType())};
    if (step) {
        made.step = ModelObject::behind(step->GetActivity());
    } else {
        made.whole = places_.at(node.GetPredecessor());
        made.step = occurrences_[made.whole].step;
    }
    occurrences_.push_back(made);
    places_.emplace(&node, place);
}

void BillRecord::NodeGoes(const VXMFabMBOMNode& node, Reason reason, const VXMFabMBOMNode& partner) {
    Occurrence& gone = occurrences_[places_.at(&node)];
    gone.fate = fateOf(reason);
    gone.partner = places_.at(&partner);
}

void BillRecord::NodeShown(const VXMFabMBOMNode& node) {
    RecordedRow row{places_.at(&node)};
    for (const VXMFabMBOMNode* above = node.GetPredecessor(); above; above = above->GetPredecessor()) {
        if (const auto found = shown_.find(above); found != shown_.end()) {
            row.below = found->second;
            row.level = rows_[row.below].level + 1;
            break;
        }
    }
    occurrences_[row.occurrence].fate = Fate::Shown;
    shown_.emplace(&node, static_cast<std::uint32_t>(rows_.size()));
    rows_.push_back(row);
}

} // namespace planner
