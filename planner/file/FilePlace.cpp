#include "planner/file/FilePlace.h"

#include "planner/file/SourceText.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <vector>

namespace planner {

PlaceCounter::PlaceCounter(std::string_view text) : text_(text), at_(signatureLength(text)) {}

const FilePlace& PlaceCounter::placeOf(std::size_t offset) {
    for (; at_ < std::min(offset, text_.size()); ++at_) {
        if (text_[at_] == '\n') {
            ++place_.line;
            place_.column = 1;
        } else if ((static_cast<unsigned char>(text_[at_]) & 0xC0U) != 0x80U) {
            ++place_.column;
        }
    }
    return place_;
}

namespace {

/// Goes through a good JSON text by its brackets and strings alone. What stands under "notes" is passed over.
class ObjectFinder {
public:
    ObjectFinder(std::string_view text, const std::unordered_set<std::string>& ids) : text_(text), ids_(ids) {}

    /// Offsets at which the objects of the ids begin.
    std::unordered_map<std::string, std::size_t> run() {
        while (found_.size() < ids_.size() && toNext("{}[]\"")) {
            const char letter = text_[at_];
            if (letter == '"') {
                takeString();
            } else if (letter == '{' || letter == '[') {
                open_.push_back({at_++, letter == '{'});
            } else {
                open_.pop_back();
                ++at_;
            }
        }
        return std::move(found_);
    }

private:
    struct Open {
        std::size_t offset;
        bool isObject;
    };

    bool toNext(const char* letters) {
        at_ = std::min(text_.find_first_of(letters, at_), text_.size());
        return at_ < text_.size();
    }

    /// The string at the present place, which goes on behind it.
    std::string string() {
        const std::size_t start = at_++;
        bool isPlain = true;
        while (toNext("\"\\") && text_[at_] == '\\') {
            isPlain = false;
            at_ += 2; // a backslash takes one character with it
        }
        const std::string_view token = text_.substr(start, ++at_ - start);
        return isPlain ? std::string(token.substr(1, token.size() - 2))
                       : nlohmann::json::parse(token).get<std::string>();
    }

    void takeString() {
        const std::string name = string();
        const std::size_t behind = text_.find_first_not_of(" \t\r\n", at_);
        if (!open_.back().isObject || text_[behind] != ':') {
            return; // no key
        }
        at_ = text_.find_first_not_of(" \t\r\n", behind + 1);
        if (name == "notes") {
            skipValue();
        } else if (name == "id") {
            const std::string id = string();
            if (ids_.contains(id)) {
                found_.emplace(id, open_.back().offset);
            }
        } else if (text_[at_] == '"') {
            string();
        }
    }

    void skipValue() {
        if (text_[at_] == '"') {
            string();
            return;
        }
        std::size_t depth = 0;
        while ((depth > 0 || text_[at_] == '{' || text_[at_] == '[') && toNext("{}[]\"")) {
            const char letter = text_[at_];
            if (letter == '"') {
                string();
                continue;
            }
            depth += letter == '{' || letter == '[' ? 1 : static_cast<std::size_t>(-1);
            ++at_;
            if (depth == 0) {
                return;
            }
        }
    }

    std::string_view text_;
    const std::unordered_set<std::string>& ids_;
    std::size_t at_ = 0;
    std::vector<Open> open_;
    std::unordered_map<std::string, std::size_t> found_;
};

} // namespace

std::unordered_map<std::string, FilePlace> placesOfObjects(std::string_view text,
                                                           const std::unordered_set<std::string>& ids) {
    const auto offsets = ObjectFinder(text, ids).run();
    std::vector<std::pair<std::size_t, std::string>> sorted;
    sorted.reserve(offsets.size());
    for (const auto& [id, offset] : offsets) {
        sorted.emplace_back(offset, id);
    }
    std::sort(sorted.begin(), sorted.end());
    PlaceCounter counter(text);
    std::unordered_map<std::string, FilePlace> places;
    for (const auto& [offset, id] : sorted) {
        places.emplace(id, counter.placeOf(offset));
    }
    return places;
}

} // namespace planner
