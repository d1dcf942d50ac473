#include "planner/file/Faults.h"

#include "planner/file/JsonPlaces.h"
#include "planner/file/SourceText.h"

#include <algorithm>

namespace planner {

namespace {

/// Follows a text to ascending offsets and counts lines and characters on the way.
class LineCounter {
public:
    explicit LineCounter(std::string_view text) : text_(text), at_(signatureLength(text)) {}

    std::string placeOf(std::size_t offset) {
        for (; at_ < std::min(offset, text_.size()); ++at_) {
            if (text_[at_] == '\n') {
                ++line_;
                column_ = 1;
            } else if ((static_cast<unsigned char>(text_[at_]) & 0xC0U) != 0x80U) {
                ++column_;
            }
        }
        return std::to_string(line_) + ":" + std::to_string(column_);
    }

private:
    std::string_view text_;
    std::size_t at_;
    std::size_t line_ = 1;
    std::size_t column_ = 1;
};

} // namespace

void Faults::add(PlacedFault fault) {
    if (!full()) {
        faults_.push_back(std::move(fault));
    }
}

std::vector<std::string> Faults::lines(const std::string& name, std::string_view text) const {
    std::vector<PlacedFault> sorted = faults_;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const PlacedFault& left, const PlacedFault& right) { return left.offset < right.offset; });
    std::vector<std::size_t> offsets(sorted.size());
    std::transform(sorted.begin(), sorted.end(), offsets.begin(),
                   [](const PlacedFault& fault) { return fault.offset; });
    const std::vector<std::string> pointers = jsonPointers(text, offsets);
    LineCounter counter(text);
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        std::string line = name + ":" + counter.placeOf(sorted[i].offset) + ": " + sorted[i].message;
        if (sorted[i].inJson && !pointers[i].empty()) {
            line += " (at " + pointers[i] + ")";
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace planner
