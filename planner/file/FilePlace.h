#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace planner {

/// A place in a text: line and column from 1, columns in characters.
struct FilePlace {
    std::size_t line = 1;
    std::size_t column = 1;

    bool operator==(const FilePlace&) const = default;
};

/// Follows a text to ascending offsets, and tells the place of each.
class PlaceCounter {
public:
    explicit PlaceCounter(std::string_view text);

    const FilePlace& placeOf(std::size_t offset);

private:
    std::string_view text_;
    std::size_t at_;
    FilePlace place_;
};

/// Where the objects of those ids begin in the text of a plan, which was read without a fault. Reads no more of the
/// text than has to be read to find them.
std::unordered_map<std::string, FilePlace> placesOfObjects(std::string_view text,
                                                           const std::unordered_set<std::string>& ids);

} // namespace planner
