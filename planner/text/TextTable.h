#pragma once

#include "planner/text/StyledText.h"

#include <string>
#include <vector>

namespace planner {

/// Rows of cells whose columns align. Nothing is cut: a column is as wide as its widest cell.
class TextTable {
public:
    enum class Side { Left, Right };
    struct Column {
        std::string heading;
        Side side = Side::Left;
    };

    explicit TextTable(std::vector<Column> columns);

    /// A row of as many cells as there are columns, or fewer: the rest stays empty.
    void addRow(std::vector<StyledText> cells);

    /// A text that takes a line for itself across the columns, one level further left than the rows: a heading of those
    /// that follow.
    void addHeading(StyledText text);

    bool empty() const { return rows_.empty(); }

    /// Writes the headings, unless all of them are empty, and the rows; two spaces in front for each level. Columns
    /// stand two spaces apart, and no line ends in spaces.
    void write(TextOutput& output, std::size_t level = 0) const;

private:
    using Cells = std::vector<StyledText>;
    struct Row {
        Cells cells;
        bool isHeading;
    };

    void writeRow(const Cells& row, TextOutput& output, std::size_t level) const;

    std::vector<Column> columns_;
    std::vector<std::size_t> widths_;
    std::vector<Row> rows_;
};

} // namespace planner
