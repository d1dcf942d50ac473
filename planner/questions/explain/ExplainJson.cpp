#include "planner/questions/explain/ExplainFormats.h"

#include "planner/text/ObjectText.h"

namespace planner {

namespace {

using Layout = JsonWriter::Layout;

/// An object by id and name; a step has its path of names besides.
void putObject(JsonWriter& json, const ModelObject& object) {
    json.beginObject(Layout::Line);
    json.member("id", object.id());
    json.member("name", object.name());
    if (object.sort() != Sort::Item) {
        json.member("path", pathOfNames(object));
    }
    json.endObject();
}

void putPaths(JsonWriter& json, double paths) {
    const std::string text = pathsText(paths);
    json.key("paths");
    if (text.find('^') == std::string::npos) {
        json.value(static_cast<std::uint64_t>(paths));
    } else {
        json.value(text);
    }
}

void putResult(JsonWriter& json, const Result& result) {
    json.beginObject(Layout::Line);
    json.member("outcome", outcomeWord(result.outcome));
    json.member("count", result.count);
    if (!result.rows.empty()) {
        json.key("lines");
        json.beginArray();
        for (const std::uint32_t row : result.rows) {
            json.value(row + 1);
        }
        json.endArray();
    }
    if (result.step) {
        json.key("step");
        putObject(json, *result.step);
        if (result.outcome != Outcome::LeftOutInStation && result.outcome != Outcome::OutsideRoot) {
            json.member("relation", roleWord(result.role));
            json.member("order", result.order > 0 ? "later" : result.order < 0 ? "earlier" : "same");
        }
    }
    if (result.with) {
        json.key("with");
        putObject(json, *result.with);
    }
    if (result.whole) {
        json.key("part_of");
        putObject(json, *result.whole);
    }
    json.endObject();
}

void putMention(JsonWriter& json, const Mention& mention) {
    json.beginObject();
    json.key("step");
    putObject(json, *mention.step);
    json.member("relation", roleWord(mention.role));
    if (mention.partOf) {
        json.key("part_of");
        putObject(json, *mention.partOf);
    } else {
        json.member("entries", mention.entries);
    }
    putPaths(json, mention.paths);
    json.key("results");
    json.beginArray();
    for (const Result& result : mention.results) {
        putResult(json, result);
    }
    json.endArray();
    json.endObject();
}

void putElement(JsonWriter& json, const RecordedBill& bill, std::uint32_t row) {
    const RecordedRow& element = bill.rows()[row];
    json.beginObject(Layout::Line);
    json.member("line", row + 1);
    json.member("level", element.level);
    if (element.below != Occurrence::kNone) {
        json.member("below", element.below + 1);
        json.member("above", namesAboveRow(bill, row));
    }
    json.endObject();
}

void putExplanation(JsonWriter& json, const RecordedBill& bill, const Explanation& explanation) {
    json.beginObject();
    json.member("id", explanation.item->id());
    json.member("name", explanation.item->name());
    json.member("kind", kindWord(*explanation.item));
    json.key("bill");
    json.beginArray();
    for (const std::uint32_t row : explanation.rows) {
        putElement(json, bill, row);
    }
    json.endArray();
    json.key("part_of");
    json.beginArray();
    for (const ModelObject* whole : explanation.wholes) {
        putObject(json, *whole);
    }
    json.endArray();
    json.key("mentions");
    json.beginArray();
    for (const Mention& mention : explanation.mentions) {
        putMention(json, mention);
    }
    json.endArray();
    json.endObject();
}

} // namespace

void writeExplanationsJson(const RecordedBill& bill, const std::vector<Explanation>& explanations, TextSink& sink) {
    JsonWriter json(sink);
    json.beginObject();
    json.key("root");
    putObject(json, bill.root());
    json.member("followed", bill.isThinned() ? "deciding" : "all");
    json.key("items");
    json.beginArray();
    for (const Explanation& explanation : explanations) {
        putExplanation(json, bill, explanation);
    }
    json.endArray();
    json.endObject();
    json.finish();
}

} // namespace planner
