#pragma once

#include "planner/file/TextSink.h"

#include <string>
#include <string_view>

namespace planner {

/// Writes a UTF-8 text as a JSON string: only what JSON wants escaped is.
void putJson(TextSink& sink, std::string_view text);

/// The shortest JSON number that reads back as the same value.
std::string jsonNumber(double value);

/// A text for a message on one line: in quotes, control characters escaped, the middle of a long text left out.
std::string inQuotes(std::string_view text);

} // namespace planner
