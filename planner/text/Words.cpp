#include "planner/text/Words.h"

#include "planner/file/SourceText.h"

#include <algorithm>
#include <array>

namespace planner {

namespace {

/// Characters from first to last, both included.
struct Range {
    char32_t first;
    char32_t last;
};

// The blocks of scripts and signs that terminals agree on.

constexpr std::array kJoining = {Range{0x0300, 0x036F}, Range{0x0483, 0x0489},   Range{0x0591, 0x05BD},
                                 Range{0x0610, 0x061A}, Range{0x064B, 0x065F},   Range{0x0E34, 0x0E3A},
                                 Range{0x0E47, 0x0E4E}, Range{0x1AB0, 0x1AFF},   Range{0x1DC0, 0x1DFF},
                                 Range{0x200B, 0x200F}, Range{0x202A, 0x202E},   Range{0x2060, 0x2064},
                                 Range{0x20D0, 0x20FF}, Range{0xFE00, 0xFE0F},   Range{0xFE20, 0xFE2F},
                                 Range{0xFEFF, 0xFEFF}, Range{0x1F3FB, 0x1F3FF}, Range{0xE0100, 0xE01EF}};

constexpr std::array kWide = {Range{0x1100, 0x115F},   Range{0x2E80, 0x303E},   Range{0x3041, 0x33FF},
                              Range{0x3400, 0x4DBF},   Range{0x4E00, 0x9FFF},   Range{0xA000, 0xA4CF},
                              Range{0xAC00, 0xD7A3},   Range{0xF900, 0xFAFF},   Range{0xFE30, 0xFE6F},
                              Range{0xFF00, 0xFF60},   Range{0xFFE0, 0xFFE6},   Range{0x1F300, 0x1F64F},
                              Range{0x1F680, 0x1F6FF}, Range{0x1F900, 0x1F9FF}, Range{0x20000, 0x3FFFD}};

template <std::size_t n>
bool holds(const std::array<Range, n>& ranges, char32_t letter) {
    return std::any_of(ranges.begin(), ranges.end(),
                       [&](const Range& range) { return letter >= range.first && letter <= range.last; });
}

std::size_t widthOf(char32_t letter) {
    if (letter < kJoining.front().first) {
        return 1;
    }
    return holds(kJoining, letter) ? 0 : holds(kWide, letter) ? 2 : 1;
}

/// Takes the first character off a UTF-8 text that isn't empty. A byte that begins none counts as a character.
char32_t takeCharacter(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t bytes = lead < 0xC0U ? 1 : lead < 0xE0U ? 2 : lead < 0xF0U ? 3 : 4;
    char32_t letter = bytes == 1 ? lead : lead & (0xFFU >> (bytes + 1));
    for (std::size_t i = 1; i < std::min(bytes, text.size()); ++i) {
        letter = (letter << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
    }
    text.remove_prefix(std::min(bytes, text.size()));
    return letter;
}

std::string writtenOut(char letter) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    switch (letter) {
    case '\n':
        return "\\n";
    case '\t':
        return "\\t";
    case '\r':
        return "\\r";
    default: {
        const auto code = static_cast<unsigned char>(letter);
        return std::string("\\x") + kDigits[code >> 4U] + kDigits[code & 0xFU];
    }
    }
}

} // namespace

std::string inLine(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    for (const char letter : text) {
        if (isControlCharacter(letter) || letter == '\n' || letter == '\t' || letter == '\r') {
            line += writtenOut(letter);
        } else {
            line += letter;
        }
    }
    return line;
}

std::size_t displayWidth(std::string_view text) {
    std::size_t width = 0;
    while (!text.empty()) {
        width += widthOf(takeCharacter(text));
    }
    return width;
}

std::string counted(std::size_t number, std::string_view one, std::string_view many) {
    std::string text = std::to_string(number) + ' ';
    if (number == 1 || many.empty()) {
        text += one;
        text += number == 1 ? "" : "s";
    } else {
        text += many;
    }
    return text;
}

} // namespace planner
