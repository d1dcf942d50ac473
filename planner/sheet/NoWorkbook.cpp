// Stands in for Workbook.cpp where the program is built without libxlsxwriter.

#include "planner/sheet/Workbook.h"

namespace planner {

class Workbook::Impl {};

std::optional<std::string> Workbook::complaintOn(std::size_t /*rows*/, const std::string& /*ofWhat*/) {
    return "xlsx can't be written: this planner was built without libxlsxwriter";
}

Workbook::Workbook(const std::string& /*path*/) {}

Workbook::~Workbook() = default;

void Workbook::beginSheet(const std::string& /*name*/, const std::vector<SheetColumn>& /*columns*/) {}

void Workbook::addRow(int /*level*/, const std::vector<Cell>& /*cells*/) {}

std::optional<std::string> Workbook::finish() {
    return complaintOn(0, {});
}

} // namespace planner
