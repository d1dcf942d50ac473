#include "planner/file/NotesRecorder.h"

#include "planner/file/JsonText.h"

#include <algorithm>

namespace planner {

void NotesRecorder::separate() {
    if (!levels_.empty()) {
        text_ += levels_.back().empty ? "" : ", ";
        levels_.back().empty = false;
    }
}

void NotesRecorder::scalar(std::string_view token) {
    if (!levels_.empty() && levels_.back().list) {
        separate();
    }
    text_ += token;
}

void NotesRecorder::open(char bracket) {
    scalar(std::string_view(&bracket, 1));
    levels_.push_back({bracket == '[', true, {}});
}

void NotesRecorder::close(char bracket, Faults& faults) {
    auto& keys = levels_.back().keys;
    std::stable_sort(keys.begin(), keys.end(),
                     [](const NamedPlace& left, const NamedPlace& right) { return left.name < right.name; });
    for (std::size_t i = 1; i < keys.size(); ++i) {
        if (keys[i].name == keys[i - 1].name) {
            faults.addValue(keys[i].offset, "the key " + inQuotes(keys[i].name) + " stands twice; expected it once");
        }
    }
    levels_.pop_back();
    text_ += bracket;
}

void NotesRecorder::key(std::string_view token, std::string name, std::size_t offset) {
    separate();
    text_ += token;
    text_ += ": ";
    levels_.back().keys.push_back({std::move(name), offset});
}

} // namespace planner
