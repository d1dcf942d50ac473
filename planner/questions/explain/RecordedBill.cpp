#include "planner/questions/explain/RecordedBill.h"

#include "VXMBomInfrastructure/generation/VXMMakeBomGenerator.h"
#include "VXMBomInfrastructure/generation/VXMTooManyNodes.h"

namespace planner {

RecordedBill::RecordedBill(ModelObject& root, long long most) : root_(root), generator_(VXMMakeBomGenerator(&root)) {
    generator_->SetRecorder(&record_);
    generator_->SetMaxNodes(most);
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
