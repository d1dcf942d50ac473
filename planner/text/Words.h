#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace planner {

/// A UTF-8 text as a part of a line: control characters are written out, as \n.
std::string inLine(std::string_view text);

/// Columns that a UTF-8 text takes on a terminal: two for a wide character, none for one that joins the one before it.
std::size_t displayWidth(std::string_view text);

/// "1 step", "3 steps", "2 assemblies". Without a word for many, an s is put behind that for one.
std::string counted(std::size_t number, std::string_view one, std::string_view many = {});

} // namespace planner
