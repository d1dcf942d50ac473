#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace planner {

/// JSON pointers of the values or keys that begin at the offsets, which ascend. The middle of a long pointer is left
/// out. Empty for the whole document, and where no value begins, as behind the place where the text ceases to be JSON.
std::vector<std::string> jsonPointers(std::string_view text, const std::vector<std::size_t>& offsets);

} // namespace planner
