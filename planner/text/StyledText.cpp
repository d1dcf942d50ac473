#include "planner/text/StyledText.h"

#include "planner/text/Words.h"

#include <array>
#include <cstdlib>
#include <unistd.h>

namespace planner {

namespace {

/// What switches a terminal to each style.
constexpr std::array<std::string_view, 7> kSwitches{"",         "\x1B[1m",  "\x1B[36m", "\x1B[2m",
                                                    "\x1B[32m", "\x1B[31m", "\x1B[33m"};
constexpr std::string_view kBack = "\x1B[0m";

} // namespace

StyledText& StyledText::add(std::string_view text, Style style) {
    if (!text.empty()) {
        pieces_.push_back({inLine(text), style});
        width_ += displayWidth(pieces_.back().text);
    }
    return *this;
}

StyledText& StyledText::append(const StyledText& other) {
    pieces_.insert(pieces_.end(), other.pieces_.begin(), other.pieces_.end());
    width_ += other.width_;
    return *this;
}

std::string StyledText::plain() const {
    std::string text;
    for (const Piece& piece : pieces_) {
        text += piece.text;
    }
    return text;
}

bool takesColours(int descriptor) {
    const char* const refused = std::getenv("NO_COLOR");
    const char* const terminal = std::getenv("TERM");
    return !(refused && *refused) && terminal && std::string_view(terminal) != "dumb" && ::isatty(descriptor) == 1;
}

void TextOutput::put(const StyledText& text) {
    for (const StyledText::Piece& piece : text.pieces()) {
        const bool coloured = colours_ && piece.style != Style::Plain;
        sink_.put(coloured ? kSwitches[static_cast<std::size_t>(piece.style)] : "");
        sink_.put(piece.text);
        sink_.put(coloured ? kBack : "");
    }
}

void TextOutput::line(const StyledText& text, std::size_t level) {
    blanks(2 * level);
    put(text);
    endLine();
}

void TextOutput::blanks(std::size_t number) {
    for (; number > 0; --number) {
        sink_.put(' ');
    }
}

} // namespace planner
