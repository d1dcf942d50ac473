#include "planner/text/JsonWriter.h"

namespace planner {

void JsonWriter::key(std::string_view name) {
    startEntry();
    putJson(sink_, name);
    sink_.put(": ");
    keyWritten_ = true;
}

void JsonWriter::value(std::string_view text) {
    startValue();
    putJson(sink_, text);
}

void JsonWriter::raw(std::string_view text) {
    startValue();
    sink_.put(text);
}

void JsonWriter::begin(char bracket, Layout layout) {
    startValue();
    sink_.put(bracket);
    open_.push_back({layout == Layout::Line || (!open_.empty() && open_.back().inLine), true});
}

void JsonWriter::end(char bracket) {
    const Open ended = open_.back();
    open_.pop_back();
    if (!ended.inLine && !ended.empty) {
        sink_.newLine(open_.size());
    }
    sink_.put(bracket);
}

void JsonWriter::startValue() {
    if (!keyWritten_ && !open_.empty()) {
        startEntry();
    }
    keyWritten_ = false;
}

void JsonWriter::startEntry() {
    Open& container = open_.back();
    if (!container.empty) {
        sink_.put(container.inLine ? ", " : ",");
    }
    container.empty = false;
    if (!container.inLine) {
        sink_.newLine(open_.size());
    }
}

} // namespace planner
