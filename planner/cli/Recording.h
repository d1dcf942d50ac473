#pragma once

#include "planner/cli/Subject.h"
#include "planner/questions/explain/RecordedBill.h"

#include <memory>

namespace planner {

/// The bill of a subject that has a root, with its record, after saying what a person should know of it; null after
/// saying that it is made of more occurrences than a record takes.
std::unique_ptr<RecordedBill> recordBill(const Subject& subject);

} // namespace planner
