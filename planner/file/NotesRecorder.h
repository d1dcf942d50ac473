#pragma once

#include "planner/file/Faults.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace planner {

/// Takes down one JSON value as its tokens come, numbers and texts as they are written, blanks put in order.
class NotesRecorder {
public:
    void scalar(std::string_view token);
    void open(char bracket);
    void close(char bracket, Faults& faults);

    /// A key: the token as it is written, what it means, and its place.
    void key(std::string_view token, std::string name, std::size_t offset);

    /// Whether the value is complete.
    bool done() const { return levels_.empty(); }
    std::string take() { return std::move(text_); }

private:
    struct NamedPlace {
        std::string name;
        std::size_t offset;
    };
    struct Level {
        bool list;
        bool empty = true;
        std::vector<NamedPlace> keys;
    };

    void separate();

    std::string text_;
    std::vector<Level> levels_;
};

} // namespace planner
