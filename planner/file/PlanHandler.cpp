// Three modes. In a plan's own objects a stack of frames says what is expected; a value that doesn't fit is skipped by
// counting brackets; a value under "notes" is taken down as it is. "aside" is what the last two have in common.

#include "planner/file/PlanHandler.h"

#include "planner/file/JsonText.h"

namespace planner {

bool PlanHandler::null() {
    places_.next();
    if (!aside(places_.token())) {
        admit(JsonType::Null);
    }
    return goOn();
}

bool PlanHandler::boolean(bool value) {
    places_.next();
    if (!aside(places_.token()) && admit(JsonType::Flag)) {
        builder_.flag(value);
    }
    return goOn();
}

bool PlanHandler::number(double value) {
    places_.next();
    if (aside(places_.token())) {
        return goOn();
    }
    const auto admitted = admit(JsonType::Number);
    if (admitted == Value::Number) {
        numbers_.push_back(value);
    } else if (admitted == Value::Version && value != 1) {
        faults_.addValue(places_.start(), "expected 1 for \"version\", found " + jsonNumber(value));
    }
    return goOn();
}

bool PlanHandler::string(string_t& value) {
    places_.next();
    if (skippedId_) {
        builder_.skippedId(value);
    }
    if (aside(places_.token())) {
        return goOn();
    }
    const auto admitted = admit(JsonType::Text);
    if (admitted == Value::Text) {
        builder_.text(place(places_.start()), std::move(value));
    } else if (admitted == Value::Id) {
        offsets_.push_back(places_.start());
    } else if (admitted == Value::ResourceChild) {
        builder_.resourceChild(*frames_.back().owner, places_.start());
    }
    return goOn();
}

bool PlanHandler::start_object(std::size_t) {
    places_.next();
    if (openAside('{')) {
        return goOn();
    }
    if (const auto admitted = admit(JsonType::Object)) {
        ModelObject* const container = frames_.empty() ? nullptr : frames_.back().owner;
        frames_.push_back({*admitted, places_.start(), builder_.begin(*admitted, container)});
    } else if (!notes_) {
        skipped_ = 1;
    }
    return goOn();
}

bool PlanHandler::start_array(std::size_t) {
    places_.next();
    if (openAside('[')) {
        return goOn();
    }
    if (const auto admitted = admit(JsonType::List)) {
        ModelObject* const owner = frames_.back().owner;
        builder_.beginList(*admitted, owner);
        frames_.push_back({*admitted, places_.start(), owner});
        offsets_.clear();
        numbers_.clear();
    } else if (!notes_) {
        skipped_ = 1;
    }
    return goOn();
}

bool PlanHandler::key(string_t& name) {
    places_.next();
    if (skipped_ > 0) {
        skippedId_ = name == "id";
        return goOn();
    }
    if (notes_) {
        notes_->key(places_.token(), std::move(name), places_.start());
        return goOn();
    }
    Frame& frame = frames_.back();
    frame.rule = findKey(frame.value, name);
    if (!frame.rule) {
        faults_.addValue(places_.start(), "unknown key " + inQuotes(name) + "; expected " + keyNames(frame.value));
        return goOn();
    }
    const auto bit = std::uint32_t{1} << static_cast<unsigned>(frame.rule->key);
    if ((frame.seen & bit) != 0) {
        faults_.addValue(places_.start(), "the key " + inQuotes(name) + " stands twice; expected it once");
        frame.rule = nullptr;
        return goOn();
    }
    frame.seen |= bit;
    builder_.key(frame.value, frame.rule->key, places_.start());
    return goOn();
}

bool PlanHandler::end_object() {
    places_.next();
    if (!closeAside('}')) {
        const Frame frame = frames_.back();
        frames_.pop_back();
        checkRequired(frame);
        builder_.end(frame.value, frame.offset);
    }
    return goOn();
}

bool PlanHandler::end_array() {
    places_.next();
    if (!closeAside(']')) {
        const Frame frame = frames_.back();
        frames_.pop_back();
        endList(frame);
    }
    return goOn();
}

void PlanHandler::checkRequired(const Frame& frame) {
    for (const KeyRule& rule : keysOf(frame.value)) {
        const auto bit = std::uint32_t{1} << static_cast<unsigned>(rule.key);
        if ((frame.seen & bit) == 0 && rule.isRequired) {
            faults_.addValue(frame.offset,
                             '"' + std::string(keyName(rule.key)) + "\" is missing; expected " + valueText(rule.value));
        }
    }
}

void PlanHandler::endList(const Frame& frame) {
    if (frame.value == Value::Ids) {
        builder_.ids(place(frame.offset), offsets_);
    } else if (frame.value == Value::Numbers && numbers_.size() == frame.seen) {
        builder_.numbers(place(frame.offset), std::move(numbers_));
    } else if (frame.value == Value::Link && frame.seen != 2) {
        faults_.addValue(frame.offset,
                         "a link with " + std::to_string(frame.seen) + " entries; expected a pair of ids");
    } else if (frame.value == Value::Link && offsets_.size() == 2) {
        builder_.link(offsets_[0], offsets_[1]);
    }
}

/// What the present value is for the plan, nothing when it doesn't fit there. A value under "notes" is begun.
std::optional<Value> PlanHandler::admit(JsonType type) {
    Value expected = Value::Document;
    if (!frames_.empty()) {
        Frame& frame = frames_.back();
        const bool isObject = !keysOf(frame.value).empty();
        if (isObject && !frame.rule) {
            return std::nullopt; // of a key that was reported
        }
        frame.seen += isObject ? 0 : 1;
        expected = isObject ? frame.rule->value : entryOf(frame.value);
    }
    if (!accepts(expected, type)) {
        faults_.addValue(places_.start(),
                         std::string("expected ") + valueText(expected) + label() + ", found " + jsonTypeText(type));
        return std::nullopt;
    }
    if (expected == Value::Notes) {
        notes_.emplace();
        if (type == JsonType::Object || type == JsonType::List) {
            notes_->open(type == JsonType::Object ? '{' : '[');
        } else {
            notes_->scalar(places_.token());
            endNotes();
        }
        return std::nullopt;
    }
    return expected;
}

/// Where a value stands, for a message: the key of the innermost object.
std::string PlanHandler::label() const {
    for (auto frame = frames_.rbegin(); frame != frames_.rend(); ++frame) {
        if (frame->rule) {
            return (frame == frames_.rbegin() ? " for \"" : " in \"") + std::string(keyName(frame->rule->key)) + '"';
        }
    }
    return "";
}

ValuePlace PlanHandler::place(std::size_t offset) const {
    const Frame& frame = frames_.back();
    return {frame.owner, frame.value, frame.rule->key, offset};
}

/// A value without anything inside, or a closing bracket. Gives whether it lies in a skipped value or in notes.
bool PlanHandler::aside(std::string_view token) {
    skippedId_ = false;
    if (skipped_ == 0 && notes_) {
        notes_->scalar(token);
    }
    return skipped_ > 0 || notes_;
}

bool PlanHandler::openAside(char bracket) {
    skippedId_ = false;
    if (skipped_ > 0) {
        ++skipped_;
        return true;
    }
    if (notes_) {
        notes_->open(bracket);
    }
    return notes_.has_value();
}

bool PlanHandler::closeAside(char bracket) {
    if (skipped_ > 0) {
        --skipped_;
        return true;
    }
    if (!notes_) {
        return false;
    }
    notes_->close(bracket, faults_);
    if (notes_->done() && !frames_.empty()) {
        endNotes();
    }
    return true;
}

void PlanHandler::endNotes() {
    builder_.notes(place(frames_.back().offset), notes_->take());
    notes_.reset();
}

bool PlanHandler::parse_error(std::size_t, const std::string&, const nlohmann::detail::exception& error) {
    constexpr int kNumberTooLarge = 406;
    if (error.id == kNumberTooLarge) {
        const std::size_t start = places_.startOfNext();
        faults_.addSyntax(start, "a number that is too large; expected one up to 1.79e308");
        return false;
    }
    std::string message = error.what();
    const std::size_t begin = message.find(": ");
    message.erase(0, begin == std::string::npos ? 0 : begin + 2);
    // Text that the parser quotes from the file can be anything; the place is told without it.
    const std::size_t quotation = message.find("; last read: ");
    const bool insideToken = message.find("invalid ") != std::string::npos;
    const std::size_t expectation = message.find("; expected", quotation);
    if (quotation != std::string::npos) {
        message.erase(quotation, expectation == std::string::npos ? std::string::npos : expectation - quotation);
    }
    faults_.addSyntax(insideToken ? places_.lastRead() : places_.startOfNext(), "no JSON: " + message);
    return false;
}

} // namespace planner
