#include "planner/questions/check/CheckFormats.h"

#include "planner/text/JsonWriter.h"
#include "planner/text/ObjectText.h"
#include "planner/text/TextTable.h"
#include "planner/text/Words.h"

namespace planner {

namespace {

/// The object that a place is told by: a behaviour without an id is told by its resource, a process that the file
/// doesn't have by what else has a part in the finding.
const ModelObject& placed(const Finding& finding) {
    const ModelObject& object = *finding.object;
    if (!object.id().empty()) {
        return object;
    }
    if (object.sort() == Sort::Behaviour) {
        return *static_cast<const FlowObject&>(object).container();
    }
    return finding.related.empty() ? object : *finding.related.front();
}

/// The beginning of the file when it has neither.
FilePlace placeOf(const CheckReport& report, const Finding& finding) {
    const auto place = report.places.find(placed(finding).id());
    return place == report.places.end() ? FilePlace() : place->second;
}

std::string placeText(const CheckReport& report, const Finding& finding) {
    const FilePlace place = placeOf(report, finding);
    return report.file + ':' + std::to_string(place.line) + ':' + std::to_string(place.column);
}

void writeObject(const ModelObject& object, JsonWriter& json) {
    json.beginObject(JsonWriter::Layout::Line);
    json.key("id");
    object.id().empty() ? json.null() : json.value(object.id());
    json.member("name", object.name());
    json.member("kind", kindWord(object));
    json.endObject();
}

void writeObjects(const char* key, const std::vector<const ModelObject*>& objects, JsonWriter& json) {
    json.key(key);
    json.beginArray();
    for (const ModelObject* object : objects) {
        writeObject(*object, json);
    }
    json.endArray();
}

void writeFinding(const CheckReport& report, const Finding& finding, JsonWriter& json) {
    json.beginObject();
    json.member("code", ruleOf(finding.code).word);
    json.key("place");
    const FilePlace place = placeOf(report, finding);
    json.beginObject(JsonWriter::Layout::Line);
    json.member("line", place.line);
    json.member("column", place.column);
    json.endObject();
    json.key("object");
    writeObject(*finding.object, json);
    json.member("message", finding.message);
    json.member("advice", finding.advice);
    writeObjects("path", finding.path, json);
    writeObjects("related", finding.related, json);
    json.endObject();
}

} // namespace

std::unordered_set<std::string> idsOf(const std::vector<Finding>& findings) {
    std::unordered_set<std::string> ids;
    for (const Finding& finding : findings) {
        if (const std::string& id = placed(finding).id(); !id.empty()) {
            ids.insert(id);
        }
    }
    return ids;
}

void writeCheckText(const CheckReport& report, TextOutput& output) {
    const std::vector<Finding>& findings = report.findings;
    StyledText head(report.root.name(), Style::Name);
    const std::string summary = findings.empty() ? "nothing found" : counted(findings.size(), "finding");
    output.line(head.add(": " + summary, Style::Plain));
    for (std::size_t i = 0; i < findings.size();) {
        const CheckRule& rule = ruleOf(findings[i].code);
        TextTable table({{""}, {""}});
        for (; i < findings.size() && findings[i].code == rule.code; ++i) {
            table.addRow({StyledText(placeText(report, findings[i]), Style::Id), StyledText(findings[i].message)});
            table.addRow({{}, StyledText("→ " + findings[i].advice, Style::Added)});
        }
        output.line();
        output.line(StyledText(rule.heading, Style::Heading)
                        .add(" (", Style::Plain)
                        .add(rule.word, Style::Warning)
                        .add(")", Style::Plain));
        table.write(output, 1);
    }
}

void writeCheckJson(const CheckReport& report, TextSink& sink) {
    JsonWriter json(sink);
    json.beginObject();
    json.key("root");
    writeObject(report.root, json);
    json.key("findings");
    json.beginArray();
    for (const Finding& finding : report.findings) {
        writeFinding(report, finding, json);
    }
    json.endArray();
    json.endObject();
    json.finish();
}

} // namespace planner
