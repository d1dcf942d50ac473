#include "planner/cli/Recording.h"

#include "planner/cli/Status.h"

namespace planner {

std::unique_ptr<RecordedBill> recordBill(const Subject& subject) {
    try {
        auto bill = std::make_unique<RecordedBill>(*subject.root);
        if (const auto remark = remarkOnBill(*subject.plan, *subject.root, bill->generator(), bill->rows().empty())) {
            complain(*remark);
        }
        return bill;
    } catch (const TooManyOccurrences& error) {
        complain(error.what());
        return nullptr;
    }
}

} // namespace planner
