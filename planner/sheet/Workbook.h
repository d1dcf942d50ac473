#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace planner {

/// What stands in a cell: nothing, a text, or a number.
using Cell = std::variant<std::monostate, std::string, double>;

/// A column of a table: its heading, how many letters are seen, and whether its texts move to the right by levels.
struct SheetColumn {
    std::string heading;
    std::size_t width;
    bool isIndented = false;
};

/// A workbook with a table in each of its sheets: a frozen head with a filter, and an outline by which what stands
/// deeper can be folded away. Rows go to the disk as they come, so that memory doesn't grow with them.
class Workbook {
public:
    /// Rows that a sheet has room for below its head.
    static constexpr std::size_t kMostRows = 1048575;

    /// Why there can't be a sheet of so many rows of something, if so: "elements".
    static std::optional<std::string> complaintOn(std::size_t rows, const std::string& ofWhat);

    /// A workbook in the file of that path, which is there when it is finished.
    explicit Workbook(const std::string& path);
    ~Workbook();
    Workbook(const Workbook&) = delete;
    Workbook& operator=(const Workbook&) = delete;

    /// Begins a sheet. Signs that its name can't have are left out of it; a name that is taken gets a number in front.
    void beginSheet(const std::string& name, const std::vector<SheetColumn>& columns);

    /// Adds a row to the sheet, of as many cells as there are columns. Level 1 stands at the margin.
    void addRow(int level, const std::vector<Cell>& cells);

    /// Ends the file. Gives what went wrong since the beginning.
    std::optional<std::string> finish();

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace planner
