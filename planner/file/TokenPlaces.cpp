#include "planner/file/TokenPlaces.h"

#include <algorithm>

namespace planner {

std::size_t TokenPlaces::startOfNext() const {
    return std::min(text_.find_first_not_of(" \t\r\n,:", end_), text_.size());
}

void TokenPlaces::next() {
    constexpr std::string_view kNumberLetters = "+-.0123456789Ee";
    start_ = startOfNext();
    const char first = start_ < text_.size() ? text_[start_] : '\0';
    if (first == '-' || (first >= '0' && first <= '9')) {
        // The parser has read one byte more to see that the number ends.
        end_ = std::min(text_.find_first_not_of(kNumberLetters, start_), text_.size());
    } else {
        end_ = static_cast<std::size_t>(latest_ - text_.data());
    }
}

std::size_t TokenPlaces::lastRead() const {
    const auto read = static_cast<std::size_t>(latest_ - text_.data());
    return read == 0 ? 0 : read - 1;
}

} // namespace planner
