#pragma once

#include "planner/file/TextSink.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace planner {

/// What a piece of text means. A terminal with colours shows each differently; nothing else does.
enum class Style : std::uint8_t { Plain, Heading, Name, Id, Added, Gone, Warning };

/// A text on one line in pieces of some style. Control characters are written out when a piece is added.
class StyledText {
public:
    struct Piece {
        std::string text;
        Style style;
    };

    StyledText() = default;
    StyledText(std::string_view text, Style style = Style::Plain) { add(text, style); }
    StyledText(const std::string& text, Style style = Style::Plain) { add(text, style); }
    StyledText(const char* text, Style style = Style::Plain) { add(text, style); }

    StyledText& add(std::string_view text, Style style = Style::Plain);
    StyledText& add(const std::same_as<StyledText> auto& other) { return append(other); }

    const std::vector<Piece>& pieces() const { return pieces_; }

    /// Columns that it takes on a terminal.
    std::size_t width() const { return width_; }

    /// The text alone.
    std::string plain() const;

private:
    StyledText& append(const StyledText& other);

    std::vector<Piece> pieces_;
    std::size_t width_ = 0;
};

/// Whether text on a descriptor may have colours: it is a terminal that knows some, and the environment doesn't set
/// NO_COLOR.
bool takesColours(int descriptor);

/// Lines for people on a sink, which stays the caller's.
class TextOutput {
public:
    TextOutput(TextSink& sink, bool colours) : sink_(sink), colours_(colours) {}

    void put(const StyledText& text);

    /// A line, two spaces in front of it for each level.
    void line(const StyledText& text = {}, std::size_t level = 0);

    void blanks(std::size_t number);
    void endLine() { sink_.put('\n'); }

private:
    TextSink& sink_;
    bool colours_;
};

} // namespace planner
