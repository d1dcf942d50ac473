#pragma once

#include "planner/questions/kits/Kits.h"
#include "planner/sheet/Workbook.h"

namespace planner {

/// Adds kits as a sheet: a row for each place, and below it one for each item, by what becomes of it there. What
/// doesn't add up stands in a second sheet, if anything does.
void addKitsSheet(Workbook& workbook, const Kits& kits, const std::string& name);

/// The rows of the longer one.
std::size_t rowsOfKits(const Kits& kits);

} // namespace planner
