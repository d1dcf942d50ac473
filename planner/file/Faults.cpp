#include "planner/file/Faults.h"

#include "planner/file/FilePlace.h"
#include "planner/file/JsonPlaces.h"

#include <algorithm>

namespace planner {

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
    PlaceCounter counter(text);
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        const FilePlace& place = counter.placeOf(sorted[i].offset);
        std::string line =
            name + ':' + std::to_string(place.line) + ':' + std::to_string(place.column) + ": " + sorted[i].message;
        if (sorted[i].inJson && !pointers[i].empty()) {
            line += " (at " + pointers[i] + ")";
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace planner
