#include "planner/file/JsonText.h"

#include <charconv>

namespace planner {

namespace {

constexpr std::size_t kLongestQuote = 80;

/// What stands for a character inside a JSON string; empty when it stands for itself.
std::string escaped(char letter) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const auto code = static_cast<unsigned char>(letter);
    switch (letter) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\t':
        return "\\t";
    case '\r':
        return "\\r";
    default:
        return code >= 0x20 ? std::string() : std::string("\\u00") + kDigits[code >> 4U] + kDigits[code & 0xFU];
    }
}

template <class Put>
void escapeInto(std::string_view text, Put put) {
    std::size_t plain = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string replacement = escaped(text[i]);
        if (!replacement.empty()) {
            put(text.substr(plain, i - plain));
            put(replacement);
            plain = i + 1;
        }
    }
    put(text.substr(plain));
}

bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

} // namespace

void putJson(TextSink& sink, std::string_view text) {
    sink.put('"');
    escapeInto(text, [&](std::string_view part) { sink.put(part); });
    sink.put('"');
}

std::string jsonNumber(double value) {
    char digits[32];
    const auto result = std::to_chars(digits, digits + sizeof(digits), value);
    return std::string(digits, result.ptr);
}

std::string inQuotes(std::string_view text) {
    std::string result = "\"";
    const auto append = [&](std::string_view part) {
        result += part;
    };
    if (text.size() <= kLongestQuote) {
        escapeInto(text, append);
    } else {
        std::size_t head = kLongestQuote / 2;
        std::size_t tail = text.size() - kLongestQuote / 2;
        while (head > 0 && continuesCharacter(text[head])) {
            --head;
        }
        while (tail < text.size() && continuesCharacter(text[tail])) {
            ++tail;
        }
        escapeInto(text.substr(0, head), append);
        result += "…";
        escapeInto(text.substr(tail), append);
    }
    return result + "\"";
}

} // namespace planner
