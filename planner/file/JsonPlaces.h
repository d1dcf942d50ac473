#pragma once

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace planner {

/// Goes through a text for a parser, and tells where it has got to.
class WatchedIterator {
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    WatchedIterator() = default;
    WatchedIterator(const char* at, const char** latest) : at_(at), latest_(latest) {}

    reference operator*() const { return *at_; }
    WatchedIterator& operator++() {
        *latest_ = ++at_;
        return *this;
    }
    WatchedIterator operator++(int) {
        WatchedIterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const WatchedIterator& left, const WatchedIterator& right) { return left.at_ == right.at_; }

private:
    const char* at_ = nullptr;
    const char** latest_ = nullptr;
};

/// Place of each token of a JSON text, found while a parser reads it through begin() and end(): the parser's events
/// carry no places, but between two tokens nothing stands but blanks, commas and colons.
class TokenPlaces {
public:
    /// Reading starts at the offset.
    TokenPlaces(std::string_view text, std::size_t offset) : text_(text), latest_(text.data() + offset), end_(offset) {}

    WatchedIterator begin() { return {latest_, &latest_}; }
    WatchedIterator end() { return {text_.data() + text_.size(), &latest_}; }

    /// Moves on to the token of the event that the parser just raised. Call it once for each event.
    void next() {
        if (!isTold_) {
            find();
        }
    }

    /// Moves on to the token of an event whose end is known, for a parser that tells it; next() then does nothing.
    void moveTo(std::size_t end) {
        isTold_ = true;
        start_ = startOfNext();
        end_ = end > start_ ? end : start_ + 1; // at least a bracket
    }

    /// The present token, and the offset where it begins.
    std::size_t start() const { return start_; }
    std::string_view token() const { return text_.substr(start_, end_ - start_); }

    /// Where the token after the present one begins.
    std::size_t startOfNext() const {
        std::size_t at = end_;
        while (at < text_.size() && isBetweenTokens(text_[at])) {
            ++at;
        }
        return at;
    }

    /// Offset of the last byte that the parser has read.
    std::size_t lastRead() const;

private:
    static constexpr bool isBetweenTokens(char letter) {
        return letter == ' ' || letter == '\n' || letter == ',' || letter == ':' || letter == '\t' || letter == '\r';
    }

    void find();

    std::string_view text_;
    const char* latest_;
    std::size_t start_ = 0;
    std::size_t end_;
    bool isTold_ = false;
};

/// JSON pointers of the values or keys that begin at the offsets, which ascend. The middle of a long pointer is left
/// out. Empty for the whole document, and where no value begins, as behind the place where the text ceases to be JSON.
std::vector<std::string> jsonPointers(std::string_view text, const std::vector<std::size_t>& offsets);

} // namespace planner
