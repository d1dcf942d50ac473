#include "planner/file/JsonPlaces.h"

#include "planner/file/SourceText.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace planner {

void TokenPlaces::find() {
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

// Pointers: the text is read a second time, with the path to the present value at hand. That costs nothing while a file
// is right.

namespace {

constexpr std::size_t kSegmentsAtEachEnd = 12;

class PointerFinder : public nlohmann::json_sax<nlohmann::json> {
public:
    PointerFinder(TokenPlaces& places, const std::vector<std::size_t>& offsets)
        : places_(places), offsets_(offsets), pointers_(offsets.size()) {}

    std::vector<std::string> take() { return std::move(pointers_); }

    bool null() override { return value(); }
    bool boolean(bool) override { return value(); }
    bool number_integer(number_integer_t) override { return value(); }
    bool number_unsigned(number_unsigned_t) override { return value(); }
    bool number_float(number_float_t, const string_t&) override { return value(); }
    bool string(string_t&) override { return value(); }
    bool binary(binary_t&) override { return value(); }
    bool start_object(std::size_t) override { return open(false); }
    bool end_object() override { return close(); }
    bool start_array(std::size_t) override { return open(true); }
    bool end_array() override { return close(); }
    bool key(string_t& name) override {
        path_.back().key = name;
        return arrive();
    }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override { return false; }

private:
    struct Level {
        bool list;
        std::size_t count;
        std::string key;

        std::string segment() const {
            std::string escaped = "/";
            if (list) {
                return escaped.append(std::to_string(count - 1));
            }
            for (const char letter : key) {
                escaped += letter == '~' ? "~0" : letter == '/' ? "~1" : std::string(1, letter);
            }
            return escaped;
        }
    };

    bool value() {
        if (!path_.empty()) {
            ++path_.back().count;
        }
        return arrive();
    }

    bool open(bool list) {
        const bool goOn = value();
        path_.push_back({list, 0, {}});
        return goOn;
    }

    bool close() {
        path_.pop_back();
        places_.next();
        return true;
    }

    bool arrive() {
        places_.next();
        while (found_ < offsets_.size() && offsets_[found_] <= places_.start()) {
            if (offsets_[found_] == places_.start()) {
                pointers_[found_] = pointer();
            }
            ++found_;
        }
        return found_ < offsets_.size();
    }

    std::string pointer() const {
        std::string text;
        for (std::size_t i = 0; i < path_.size(); ++i) {
            if (i == kSegmentsAtEachEnd && path_.size() > 2 * kSegmentsAtEachEnd) {
                text += "/…";
                i = path_.size() - kSegmentsAtEachEnd;
            }
            text += path_[i].segment();
        }
        return text;
    }

    TokenPlaces& places_;
    const std::vector<std::size_t>& offsets_;
    std::vector<std::string> pointers_;
    std::size_t found_ = 0;
    std::vector<Level> path_;
};

} // namespace

std::vector<std::string> jsonPointers(std::string_view text, const std::vector<std::size_t>& offsets) {
    TokenPlaces places(text, signatureLength(text));
    PointerFinder finder(places, offsets);
    nlohmann::json::sax_parse(places.begin(), places.end(), &finder);
    return finder.take();
}

} // namespace planner
