#include "planner/questions/explain/RecordedBill.h"

#include "planner/bill/MakeGenerator.h"

#include "VXMBomInfrastructure/generation/VXMTooManyNodes.h"

#include <algorithm>

namespace planner {

RecordedBill::RecordedBill(ModelObject& root, long long most) : root_(root), generator_(makeGenerator(&root)) {
    generator_->SetRecorder(&record_);
    generator_->SetMaxNodes(std::min(most, generator_->GetMaxNodes()));
    try {
        generator_->GetBom(1);
    } catch (const VXMTooManyNodes&) {
        isThinned_ = true;
    }
    if (isThinned_) {
        record_.followWhatDecides();
        try {
            generator_->GetBom(1);
        } catch (const VXMTooManyNodes& error) {
            throw TooManyOccurrences(error.what());
        }
    }
    generator_->SetRecorder(nullptr);
    record_.close();
    flow_ = std::make_unique<ReachedFlow>(*generator_, root);
}

} // namespace planner
