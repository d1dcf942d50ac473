#pragma once

#include "planner/file/Faults.h"
#include "planner/file/JsonPlaces.h"
#include "planner/file/NotesRecorder.h"
#include "planner/file/PlanBuilder.h"
#include "planner/file/PlanGrammar.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace planner {

/// Takes the events of the JSON parser, holds each value against what a plan has at its place, and passes the good
/// ones on to the builder. A bad value is reported and skipped with all that it contains; reading goes on behind it.
class PlanHandler final : public nlohmann::json_sax<nlohmann::json> {
public:
    PlanHandler(TokenPlaces& places, PlanBuilder& builder, Faults& faults)
        : places_(places), builder_(builder), faults_(faults) {}

    /// Takes the text for one value under "notes" instead of a plan; and that value as it was taken down.
    void expectNotes() { notes_.emplace(); }
    std::string takeNotes() { return notes_->take(); }

    bool null() override;
    bool boolean(bool value) override;
    bool number_integer(number_integer_t value) override { return number(static_cast<double>(value)); }
    bool number_unsigned(number_unsigned_t value) override { return number(static_cast<double>(value)); }
    bool number_float(number_float_t value, const string_t&) override { return number(value); }
    bool string(string_t& value) override;
    bool binary(binary_t&) override { return false; } // JSON text has none
    bool start_object(std::size_t) override;
    bool key(string_t& name) override;
    bool end_object() override;
    bool start_array(std::size_t) override;
    bool end_array() override;
    bool parse_error(std::size_t, const std::string& token, const nlohmann::detail::exception& error) override;

private:
    /// An object or list that is open.
    struct Frame {
        Value value;
        std::size_t offset;
        ModelObject* owner;
        const KeyRule* rule = nullptr; // of an object: the present key, null for an unknown one
        std::uint32_t seen = 0;        // of an object: a bit for each key; of a list: the number of entries
    };

    bool number(double value);
    bool goOn() const { return !faults_.full(); }
    bool aside(std::string_view token);
    bool openAside(char bracket);
    bool closeAside(char bracket);
    void endNotes();
    std::optional<Value> admit(JsonType type);
    void checkRequired(const Frame& frame);
    void endList(const Frame& frame);
    ValuePlace place(std::size_t offset) const;
    std::string label() const;

    TokenPlaces& places_;
    PlanBuilder& builder_;
    Faults& faults_;
    std::vector<Frame> frames_;
    std::optional<NotesRecorder> notes_; // while a value under "notes" is read
    std::size_t skipped_ = 0;            // depth in a value that is skipped
    bool skippedId_ = false;             // the present key in a skipped object is "id"
    std::vector<std::size_t> offsets_;   // entries of the present list of ids, or link
    std::vector<double> numbers_;        // entries of the present list of numbers
};

} // namespace planner
