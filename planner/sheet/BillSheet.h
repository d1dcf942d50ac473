#pragma once

#include "planner/bill/Bill.h"
#include "planner/sheet/Workbook.h"

namespace planner {

/// Adds a bill as a sheet, an element a row: level, name, kind, type of a fastener, id of the object.
void addBillSheet(Workbook& workbook, const Bill& bill, const std::string& name);

} // namespace planner
