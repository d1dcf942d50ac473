#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace planner {

/// Name of standard input where a path is expected.
inline constexpr std::string_view kStandardInput = "-";

/// How messages call the file of that path.
std::string sourceName(const std::string& path);

/// Reads a whole file, or standard input for "-". Gives what went wrong, or nothing; text is filled only on success.
std::optional<std::string> readSource(const std::string& path, std::string& text);

/// Something in a text that no plan file may hold, and where.
struct EncodingFault {
    std::size_t offset;
    std::string message;
};

/// The first byte that keeps the text from being UTF-8 without NUL; nothing when it is.
std::optional<EncodingFault> findEncodingFault(std::string_view text);

/// A control character that no plan can hold: one other than tab and line end.
bool isControlCharacter(char letter);

/// Whether a text holds one.
bool holdsControlCharacter(std::string_view text);

/// What a message says of such a text, behind it.
inline constexpr const char* kControlCharacterText = " holds a control character; expected none but tab and line end";

/// Length of the signature that some editors put in front of UTF-8; 0 when there is none.
std::size_t signatureLength(std::string_view text);

} // namespace planner
