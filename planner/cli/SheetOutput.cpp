#include "planner/cli/SheetOutput.h"

namespace planner {

Status writeWorkbook(Output& output, std::size_t rows, const std::string& ofWhat,
                     const std::function<void(Workbook& workbook)>& fill) {
    if (const auto complaint = Workbook::complaintOn(rows, ofWhat)) {
        complain(*complaint);
        return Status::Bad;
    }
    if (output.writtenPath().empty()) {
        complain("a spreadsheet isn't written to standard output; name a file with --output");
        return Status::Bad;
    }
    Workbook workbook(output.writtenPath());
    fill(workbook);
    return output.finish(workbook.finish());
}

} // namespace planner
