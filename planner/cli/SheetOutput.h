#pragma once

#include "planner/cli/Output.h"
#include "planner/sheet/Workbook.h"

#include <functional>

namespace planner {

/// Writes a workbook whose largest sheet has so many rows ("elements") where a command writes.
Status writeWorkbook(Output& output, std::size_t rows, const std::string& ofWhat,
                     const std::function<void(Workbook& workbook)>& fill);

} // namespace planner
