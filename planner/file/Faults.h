#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace planner {

/// What is wrong in a text, and where.
struct PlacedFault {
    std::size_t offset;
    std::string message;
    bool inJson; ///< whether the place can be told as a JSON pointer as well
};

/// The faults of one text, up to 20: whoever reads them mends those first.
class Faults {
public:
    static constexpr std::size_t kMost = 20;

    /// The file's text can't be taken for JSON at that place.
    void addSyntax(std::size_t offset, std::string message) { add({offset, std::move(message), false}); }

    /// The JSON value or key at that place isn't what a plan has there.
    void addValue(std::size_t offset, std::string message) { add({offset, std::move(message), true}); }

    bool empty() const { return faults_.empty(); }
    bool full() const { return faults_.size() >= kMost; }

    /// A line each in the order of their places: file, line and column from 1, what is wrong, JSON pointer.
    std::vector<std::string> lines(const std::string& name, std::string_view text) const;

private:
    void add(PlacedFault fault);

    std::vector<PlacedFault> faults_;
};

} // namespace planner
