#include "planner/sheet/Workbook.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace planner {

namespace {

constexpr int kDeepestOutline = 7; // spreadsheets know no more levels
constexpr int kDeepestIndent = 15;
constexpr std::size_t kLongestName = 31;
constexpr std::size_t kLongestText = 32000; // bytes; a cell holds 32,767 letters
constexpr double kRoomForFilter = 3;
constexpr lxw_color_t kHeadColour = 0xDDE5F0;

/// Cuts a UTF-8 text to so many bytes at most, between two letters.
std::string cut(std::string text, std::size_t most, const char* mark) {
    if (text.size() <= most) {
        return text;
    }
    while (most > 0 && (static_cast<unsigned char>(text[most]) & 0xC0U) == 0x80U) {
        --most;
    }
    return text.substr(0, most) + mark;
}

/// XML can't carry U+FFFE and U+FFFF: they become U+FFFD.
std::string carried(std::string text) {
    for (std::size_t at = text.find("\xEF\xBF"); at != std::string::npos && at + 2 < text.size();
         at = text.find("\xEF\xBF", at + 1)) {
        text[at + 2] = static_cast<unsigned char>(text[at + 2]) >= 0xBE ? '\xBD' : text[at + 2];
    }
    return cut(std::move(text), kLongestText, "…");
}

std::string sheetName(const std::string& wanted) {
    std::string name;
    for (const char letter : carried(wanted)) {
        const bool isTaken = std::string_view("[]:*?/\\'\n\r\t").find(letter) != std::string_view::npos;
        name += isTaken ? ' ' : letter;
    }
    name = cut(name, kLongestName, "");
    return name.empty() ? "Sheet" : name;
}

/// Keeps what the library says of errors off standard error, as long as it lives: what is wrong is told once.
class Silence {
public:
    Silence() : errors_(::dup(STDERR_FILENO)) {
        const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        ::dup2(nowhere, STDERR_FILENO);
        ::close(nowhere);
    }
    ~Silence() {
        ::dup2(errors_, STDERR_FILENO);
        ::close(errors_);
    }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    int errors_;
};

} // namespace

class Workbook::Impl {
public:
    explicit Impl(const std::string& path) {
        lxw_workbook_options options{};
        options.constant_memory = LXW_TRUE;
        options.use_zip64 = LXW_TRUE;
        const Silence silence;
        book_ = workbook_new_opt(path.c_str(), &options);
        head_ = workbook_add_format(book_);
        format_set_bold(head_);
        format_set_bg_color(head_, kHeadColour);
        format_set_bottom(head_, LXW_BORDER_THIN);
    }

    ~Impl() {
        if (book_) {
            close();
        }
    }

    Impl(const Impl&) = delete;
    Impl& operator=(const Impl&) = delete;

    void beginSheet(const std::string& name, const std::vector<SheetColumn>& columns) {
        endSheet();
        columns_ = columns;
        row_ = 0;
        std::string free = sheetName(name);
        for (int number = 2; workbook_get_worksheet_by_name(book_, free.c_str()); ++number) {
            free = sheetName(std::to_string(number) + ' ' + name);
        }
        sheet_ = workbook_add_worksheet(book_, free.c_str());
        if (!sheet_) {
            note(LXW_ERROR_SHEETNAME_ALREADY_USED);
            return;
        }
        worksheet_outline_settings(sheet_, LXW_TRUE, LXW_FALSE, LXW_FALSE, LXW_FALSE); // signs beside what is folded
        worksheet_freeze_panes(sheet_, 1, 0);
        worksheet_repeat_rows(sheet_, 0, 0);
        worksheet_fit_to_pages(sheet_, 1, 0);
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const auto column = static_cast<lxw_col_t>(i);
            const double width = static_cast<double>(columns[i].width) + kRoomForFilter;
            worksheet_set_column(sheet_, column, column, width, nullptr);
            note(worksheet_write_string(sheet_, 0, column, columns[i].heading.c_str(), head_));
        }
    }

    void addRow(int level, const std::vector<Cell>& cells) {
        if (!sheet_) {
            return;
        }
        ++row_;
        lxw_row_col_options options{};
        options.level = static_cast<std::uint8_t>(std::min(level - 1, kDeepestOutline));
        note(worksheet_set_row_opt(sheet_, row_, LXW_DEF_ROW_HEIGHT, nullptr, &options));
        for (std::size_t i = 0; i < cells.size(); ++i) {
            put(static_cast<lxw_col_t>(i), cells[i], columns_[i].isIndented ? indent(level - 1) : nullptr);
        }
    }

    std::optional<std::string> finish() {
        endSheet();
        close();
        if (error_ == LXW_NO_ERROR) {
            return std::nullopt;
        }
        return std::string("can't be written: ") + (number_ != 0 ? std::strerror(number_) : lxw_strerror(error_));
    }

private:
    void close() {
        const Silence silence;
        errno = 0;
        note(workbook_close(book_));
        number_ = errno;
        book_ = nullptr;
    }

    void put(lxw_col_t column, const Cell& cell, lxw_format* format) {
        if (const auto* const number = std::get_if<double>(&cell)) {
            note(worksheet_write_number(sheet_, row_, column, *number, format));
        } else if (const auto* const text = std::get_if<std::string>(&cell); text && !text->empty()) {
            note(worksheet_write_string(sheet_, row_, column, carried(*text).c_str(), format));
        }
    }

    /// The filter reaches down to the last row. What couldn't go to the disk is known only by then.
    void endSheet() {
        if (!sheet_) {
            return;
        }
        note(worksheet_autofilter(sheet_, 0, 0, row_, static_cast<lxw_col_t>(columns_.size() - 1)));
        if (sheet_->optimize_tmpfile &&
            (std::fflush(sheet_->optimize_tmpfile) != 0 || std::ferror(sheet_->optimize_tmpfile) != 0)) {
            note(LXW_ERROR_CREATING_TMPFILE);
        }
        sheet_ = nullptr;
    }

    lxw_format* indent(int level) {
        const int depth = std::min(level, kDeepestIndent);
        if (depth > 0 && !indents_[depth]) {
            indents_[depth] = workbook_add_format(book_);
            format_set_indent(indents_[depth], static_cast<std::uint8_t>(depth));
        }
        return indents_[depth];
    }

    void note(lxw_error error) { error_ = error_ == LXW_NO_ERROR ? error : error_; }

    lxw_workbook* book_;
    lxw_worksheet* sheet_ = nullptr;
    lxw_format* head_;
    std::array<lxw_format*, kDeepestIndent + 1> indents_{};
    std::vector<SheetColumn> columns_;
    lxw_row_t row_ = 0;
    lxw_error error_ = LXW_NO_ERROR;
    int number_ = 0; // of the system's error behind it, if there was one
};

std::optional<std::string> Workbook::complaintOn(std::size_t rows, const std::string& ofWhat) {
    return rows <= kMostRows ? std::nullopt
                             : std::optional("a sheet of xlsx has room for " + std::to_string(kMostRows) + ' ' +
                                             ofWhat + ", and there are " + std::to_string(rows));
}

Workbook::Workbook(const std::string& path) : impl_(std::make_unique<Impl>(path)) {}

Workbook::~Workbook() = default;

void Workbook::beginSheet(const std::string& name, const std::vector<SheetColumn>& columns) {
    impl_->beginSheet(name, columns);
}

void Workbook::addRow(int level, const std::vector<Cell>& cells) {
    impl_->addRow(level, cells);
}

std::optional<std::string> Workbook::finish() {
    return impl_->finish();
}

} // namespace planner
