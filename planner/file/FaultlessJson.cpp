#include "planner/file/FaultlessJson.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <charconv>
#include <cstdlib>
#include <new>

namespace planner {

namespace {

/// Memory for RapidJSON, which doesn't look whether it got any.
struct ThrowingAllocator {
    [[maybe_unused]] static constexpr bool kNeedFree = true; // NOLINT(readability-identifier-naming): RapidJSON's name

    static void* Malloc(std::size_t size) { return size == 0 ? nullptr : checked(std::malloc(size)); }
    static void* Realloc(void* old, std::size_t, std::size_t size) {
        if (size == 0) {
            Free(old);
            return nullptr;
        }
        return checked(std::realloc(old, size));
    }
    static void Free(void* memory) { std::free(memory); }

private:
    static void* checked(void* memory) { return memory ? memory : throw std::bad_alloc(); }
};

/// Hands RapidJSON's events on.
class Events {
public:
    using Handler = nlohmann::json_sax<nlohmann::json>;
    using Letters = const char*;
    using Count = rapidjson::SizeType;

    Events(const rapidjson::MemoryStream& stream, std::size_t offset, TokenPlaces& places, Handler& handler)
        : stream_(stream), offset_(offset), places_(places), handler_(handler) {}

    bool Null() { return arrive().null(); }
    bool Bool(bool value) { return arrive().boolean(value); }
    bool String(Letters letters, Count length, bool) { return take(letters, length) && arrive().string(text_); }
    bool Key(Letters letters, Count length, bool) { return take(letters, length) && arrive().key(text_); }
    bool StartObject() { return arrive().start_object(kUnknownCount); }
    bool EndObject(Count) { return arrive().end_object(); }
    bool StartArray() { return arrive().start_array(kUnknownCount); }
    bool EndArray(Count) { return arrive().end_array(); }
    bool RawNumber(Letters letters, Count length, bool) { return takeNumber({letters, length}); }

    // What comes only of numbers that are converted.
    bool Int(int) { return false; }
    bool Int64(std::int64_t) { return false; }
    bool Uint(unsigned) { return false; }
    bool Uint64(std::uint64_t) { return false; }
    bool Double(double) { return false; }

private:
    static constexpr std::size_t kUnknownCount = static_cast<std::size_t>(-1);

    /// False for a text with half a character of two: RapidJSON lets the second half pass without the first.
    bool take(Letters letters, Count length) {
        constexpr char kFirstOfHalf = '\xED';
        constexpr unsigned char kSecondOfHalf = 0xA0; // or above
        text_.assign(letters, length);
        std::size_t at = text_.find(kFirstOfHalf);
        while (at != std::string::npos && static_cast<unsigned char>(text_[at + 1]) < kSecondOfHalf) {
            at = text_.find(kFirstOfHalf, at + 1);
        }
        return at == std::string::npos;
    }

    /// Whole numbers that are too large for that are taken as fractions are; what is too large, or too small, even then
    /// is refused.
    bool takeNumber(std::string_view number) {
        if (number.find_first_of(".eE") == std::string_view::npos) {
            if (std::uint64_t value = 0; convert(number, value)) {
                return arrive().number_unsigned(value);
            }
            if (std::int64_t value = 0; convert(number, value)) {
                return arrive().number_integer(value);
            }
        }
        double value = 0;
        return convert(number, value) && arrive().number_float(value, {});
    }

    template <class Value>
    static bool convert(std::string_view number, Value& value) {
        return std::from_chars(number.data(), number.data() + number.size(), value).ec == std::errc();
    }

    /// RapidJSON stands behind the token whose event it raises, but before an opening bracket.
    Handler& arrive() {
        places_.moveTo(offset_ + stream_.Tell());
        return handler_;
    }

    const rapidjson::MemoryStream& stream_;
    std::size_t offset_;
    TokenPlaces& places_;
    Handler& handler_;
    std::string text_; // of the latest string or key
};

} // namespace

bool readFaultlessJson(std::string_view text, std::size_t offset, TokenPlaces& places,
                       nlohmann::json_sax<nlohmann::json>& handler) {
    // Iterative: a plan may be nested deeper than the thread's stack allows. Numbers as texts: RapidJSON's conversion
    // of a zero with an exponent isn't defined.
    constexpr unsigned kFlags = rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
    ThrowingAllocator memory;
    rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, ThrowingAllocator> reader(&memory);
    rapidjson::MemoryStream stream(text.data() + offset, text.size() - offset);
    Events events(stream, offset, places, handler);
    // A null byte ends the text for RapidJSON, wherever it stands.
    return reader.Parse<kFlags>(stream, events) && offset + stream.Tell() == text.size();
}

} // namespace planner
