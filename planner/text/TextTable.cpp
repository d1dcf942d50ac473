#include "planner/text/TextTable.h"

#include <algorithm>

namespace planner {

namespace {

constexpr std::size_t kGap = 2;

} // namespace

TextTable::TextTable(std::vector<Column> columns) : columns_(std::move(columns)), widths_(columns_.size()) {
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        widths_[i] = StyledText(columns_[i].heading).width();
    }
}

void TextTable::addRow(Cells cells) {
    cells.resize(std::min(cells.size(), columns_.size()));
    for (std::size_t i = 0; i < cells.size(); ++i) {
        widths_[i] = std::max(widths_[i], cells[i].width());
    }
    rows_.push_back({std::move(cells), false});
}

void TextTable::addHeading(StyledText text) {
    rows_.push_back({{std::move(text)}, true});
}

void TextTable::write(TextOutput& output, std::size_t level) const {
    Cells headings;
    for (const Column& column : columns_) {
        headings.emplace_back(column.heading, Style::Heading);
    }
    if (std::any_of(headings.begin(), headings.end(), [](const StyledText& cell) { return cell.width() > 0; })) {
        writeRow(headings, output, level);
    }
    for (const Row& row : rows_) {
        if (row.isHeading) {
            output.line(row.cells.front(), level > 0 ? level - 1 : 0);
        } else {
            writeRow(row.cells, output, level);
        }
    }
}

void TextTable::writeRow(const Cells& row, TextOutput& output, std::size_t level) const {
    std::size_t owed = 2 * level; // spaces that are written only in front of something
    for (std::size_t i = 0; i < row.size(); ++i) {
        const std::size_t padding = widths_[i] - row[i].width();
        owed += columns_[i].side == Side::Right ? padding : 0;
        if (row[i].width() > 0) {
            output.blanks(owed);
            output.put(row[i]);
            owed = 0;
        }
        owed += (columns_[i].side == Side::Left ? padding : 0) + kGap;
    }
    output.endLine();
}

} // namespace planner
