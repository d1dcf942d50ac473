#pragma once

#include "planner/file/JsonText.h"

#include <concepts>
#include <cstdint>
#include <string_view>
#include <vector>

namespace planner {

/// Writes one JSON value on a sink, which stays the caller's, as it is told: begin, keys and values, end. Commas and
/// line breaks come by themselves. A container that is laid out in a line stays on one with all that is in it.
class JsonWriter {
public:
    enum class Layout : std::uint8_t { Lines, Line };

    explicit JsonWriter(TextSink& sink) : sink_(sink) {}

    void beginObject(Layout layout = Layout::Lines) { begin('{', layout); }
    void endObject() { end('}'); }
    void beginArray(Layout layout = Layout::Lines) { begin('[', layout); }
    void endArray() { end(']'); }

    /// The key of the value that is written next.
    void key(std::string_view name);

    // Values. A text is UTF-8.
    void value(std::string_view text);
    void value(const char* text) { value(std::string_view(text)); }
    void value(const std::string& text) { value(std::string_view(text)); }
    void value(std::same_as<bool> auto truth) { raw(truth ? "true" : "false"); }
    void value(std::integral auto number) requires(!std::same_as<decltype(number), bool>) {
        raw(std::to_string(number));
    }
    void value(double number) { raw(jsonNumber(number)); }
    void null() { raw("null"); }

    /// A key with its value.
    void member(std::string_view name, const auto& content) {
        key(name);
        value(content);
    }

    /// Ends the text, after its one value.
    void finish() { sink_.put('\n'); }

private:
    struct Open {
        bool inLine;
        bool empty;
    };

    void begin(char bracket, Layout layout);
    void end(char bracket);
    void raw(std::string_view text);
    void startValue();
    void startEntry();

    TextSink& sink_;
    std::vector<Open> open_;
    bool keyWritten_ = false;
};

} // namespace planner
