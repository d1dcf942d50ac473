#pragma once

#include "planner/model/ModelObject.h"

#include "VXMBomInfrastructure/generation/VXMBomRecorder.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace planner {

/// What a step does with an item that it lists.
enum class Role : std::uint8_t {
    FirstAssigned,
    Assigned,
    Removed,
    PutOut,
    Joined, ///< a fastener that is set
    Listed  ///< anything else among its further items, which no bill shows
};

/// What became of an occurrence.
enum class Fate : std::uint8_t {
    Stays,             ///< no pass took it, and it is of no sort that the bill shows
    Shown,             ///< it stands in the bill
    Paired,            ///< a removal and an assignment went together: the partner is the other of the two
    AssignedOtherwise, ///< assigned, and the partner is another assignment of the same item
    Repeat,            ///< the partner, of the same item, was met first
    BelowRepeat        ///< part of something that went as a repeat
};

/// One entry of one list of one step on one way to the end of the flow, or a part in the structure of such an entry.
struct Occurrence {
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    const ModelObject* object;
    const ModelObject* step;       ///< whose list has the entry
    std::uint32_t whole = kNone;   ///< the occurrence that it is a part of; none for the entry itself
    std::uint32_t partner = kNone; ///< what it went for
    Role role;                     ///< of the entry
    Fate fate = Fate::Stays;
};

/// An element of the bill, rows counting from 0 in the order of the document.
struct RecordedRow {
    std::uint32_t occurrence;
    std::uint32_t below = Occurrence::kNone; ///< the row that it stands below; none at the top
    int level = 1;
};

/// Writes down what became of the occurrences of a bill while it is computed.
class BillRecord final : public VXMBomRecorder {
public:
    /// From the next computation on, takes down only what decides the bill.
    void followWhatDecides() { wantsEveryNode_ = 0; }

    const std::vector<Occurrence>& occurrences() const { return occurrences_; }
    const std::vector<RecordedRow>& rows() const { return rows_; }

    unsigned char WantsEveryNode() override { return wantsEveryNode_; }
    void Begin() override;
    void NodeMade(const VXMFabMBOMNode& node, const VXMFabFlowNode* step) override;
    void NodeGoes(const VXMFabMBOMNode& node, Reason reason, const VXMFabMBOMNode& partner) override;
    void NodeShown(const VXMFabMBOMNode& node) override;

    /// Forgets what serves only while the bill is computed.
    void close();

private:
    unsigned char wantsEveryNode_ = 1;
    std::vector<Occurrence> occurrences_;
    std::vector<RecordedRow> rows_;
    std::unordered_map<const VXMFabMBOMNode*, std::uint32_t> places_;
    std::unordered_map<const VXMFabMBOMNode*, std::uint32_t> shown_; // rows by their nodes
};

} // namespace planner
