#pragma once

#include "planner/questions/check/ReachedFlow.h"
#include "planner/questions/explain/BillRecord.h"

#include "planner/model/FastenerSettings.h"

#include <memory>
#include <stdexcept>

namespace planner {

/// Raised when there are more occurrences than a record takes: paths multiply. The text says where.
struct TooManyOccurrences : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The bill of a root with the record of how it came about, and the flow behind it.
class RecordedBill {
public:
    /// Occurrences of steps on several paths above which not each of them is followed.
    static constexpr long long kMostOccurrences = 5'000'000;

    /// Computes the bill. When paths multiply, so that there are more occurrences than that, only those are followed
    /// that decide the bill. Raises TooManyOccurrences when these are too many as well.
    explicit RecordedBill(ModelObject& root, long long most = kMostOccurrences);

    const ModelObject& root() const { return root_; }
    const std::vector<Occurrence>& occurrences() const { return record_.occurrences(); }
    const std::vector<RecordedRow>& rows() const { return record_.rows(); }

    /// Whether only those occurrences were followed that decide the bill; the others add nothing.
    bool isThinned() const { return isThinned_; }

    const ReachedFlow& flow() const { return *flow_; }

    /// The generator that made it.
    VXMBomGenerator& generator() const { return *generator_; }

    /// Whether fasteners that aren't assigned are left out.
    bool showsAssignedFastenersOnly() const { return generator_->GetAssignedFastenersShowMode() == 1; }

private:
    ModelObject& root_;
    bool isThinned_ = false;
    FastenerSettings settings_;
    BillRecord record_;
    std::unique_ptr<VXMBomGenerator> generator_;
    std::unique_ptr<ReachedFlow> flow_;
};

} // namespace planner
