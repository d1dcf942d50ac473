// The fast pass over JSON, held against the one that messages go by: same events, same values, same places.

#include "planner/file/FaultlessJson.h"

#include "planner/file/SourceText.h"

#include <gtest/gtest.h>

#include <random>

using namespace planner;

namespace {

/// Writes down each event with its value and its token.
class Events final : public nlohmann::json_sax<nlohmann::json> {
public:
    explicit Events(TokenPlaces& places) : places_(places) {}

    bool null() override { return note("null"); }
    bool boolean(bool value) override { return note(value ? "true" : "false"); }
    bool number_integer(number_integer_t value) override { return number(static_cast<double>(value)); }
    bool number_unsigned(number_unsigned_t value) override { return number(static_cast<double>(value)); }
    bool number_float(number_float_t value, const string_t&) override { return number(value); }
    bool string(string_t& value) override { return note("text " + value); }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return note("{"); }
    bool end_object() override { return note("}"); }
    bool start_array(std::size_t) override { return note("["); }
    bool end_array() override { return note("]"); }
    bool key(string_t& name) override { return note("key " + name); }
    bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override { return false; }

    std::string text;

private:
    bool number(double value) { return note("number " + nlohmann::json(value).dump()); }
    bool note(const std::string& what) {
        places_.next();
        text += what + " at " + std::to_string(places_.start()) + ' ' + std::string(places_.token()) + '\n';
        return true;
    }

    TokenPlaces& places_;
};

std::optional<std::string> directEvents(std::string_view text) {
    TokenPlaces places(text, 0);
    Events events(places);
    return nlohmann::json::sax_parse(places.begin(), places.end(), &events) ? std::optional(events.text) : std::nullopt;
}

std::optional<std::string> fastEvents(std::string_view text) {
    TokenPlaces places(text, 0);
    Events events(places);
    return readFaultlessJson(text, 0, places, events) ? std::optional(events.text) : std::nullopt;
}

constexpr std::string_view kPlan =
    R"( {"version": 1.0, "items":[{"id":"a\"\u00e4\\","size":[-0, -0.5e+3,1E2,12e-1, 0, 0e50, -0e5, 0.0E-7, 9007199254740993, 0.1, -9223372036854775808, 5e-324, -9223372036854775809]},{}],
 "notes" : {"x":[null,true,false,[[ ]], "\n\t\/\u20ac"], "big": 18446744073709551616} , "ä€😀한":"\ud83d\ude00\ud55c" } )";

TEST(FaultlessJson, TakesAllThatAPlanFileHas) {
    for (const std::string_view text :
         {kPlan, std::string_view("7"), std::string_view("[]"), std::string_view("\"\"")}) {
        EXPECT_EQ(fastEvents(text).value_or("refused"), directEvents(text));
    }
}

TEST(FaultlessJson, RefusesWhatIsNoJson) {
    for (const std::string_view text : {"",           " ",      "{",   "[1,]", "[,1]", "{\"a\"}", "{\"a\":}",
                                        "{\"a\":1,}", "{1:2}",  "01",  "-",    "1.",   ".5",      "1e",
                                        "+1",         "1e999",  "tru", "nul",  "\"",   "\"\\x\"", "\"\\ud800\"",
                                        "\"\\u12\"",  "\"\n\"", "1 2", "[1}",  "]",    "{}}",     "\"\\ude00\""}) {
        EXPECT_EQ(fastEvents(text), std::nullopt) << text;
    }
}

TEST(FaultlessJson, GivesTheSameEventsForMangledText) {
    constexpr std::string_view kLetters = "{}[]\",:\\0123.eE+-tnu \n";
    std::mt19937 random(1);
    int accepted = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string text(kPlan);
        for (auto changes = random() % 3; changes > 0; --changes) {
            const std::size_t place = random() % text.size();
            const char letter = kLetters[random() % kLetters.size()];
            random() % 2 == 0 ? text.replace(place, 1, 1, letter) : text.insert(place, 1, letter);
        }
        if (findEncodingFault(text)) {
            continue; // the reader turns it down before either pass
        }
        if (const auto events = fastEvents(text)) {
            ++accepted;
            ASSERT_EQ(*events, directEvents(text)) << text;
        }
    }
    EXPECT_GT(accepted, 5000);
}

} // namespace
