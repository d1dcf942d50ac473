#include "planner/report/Report.h"

#include "planner/model/Item.h"
#include "planner/text/JsonWriter.h"
#include "planner/text/ObjectText.h"

#include <numeric>

namespace planner {

namespace {

using Layout = JsonWriter::Layout;

/// The objects that the page shows, each once, in the order in which they are met.
class Things {
public:
    std::size_t place(const ModelObject& object) {
        const auto [found, isNew] = places_.emplace(&object, objects_.size());
        if (isNew) {
            objects_.push_back(&object);
        }
        return found->second;
    }

    void write(JsonWriter& json) const {
        json.key("things");
        json.beginArray(Layout::Line);
        for (const ModelObject* object : objects_) {
            const auto* const fastener = dynamic_cast<const Fastener*>(object);
            json.beginArray(Layout::Line);
            json.value(object->name());
            json.value(kindWord(*object));
            json.value(fastener ? fastener->type.value_or("") : std::string());
            json.value(object->id());
            json.endArray();
        }
        json.endArray();
    }

private:
    std::unordered_map<const ModelObject*, std::size_t> places_;
    std::vector<const ModelObject*> objects_;
};

void writeBillData(const Bill& bill, Things& things, JsonWriter& json) {
    json.key("levels");
    json.beginArray(Layout::Line);
    for (const BillElement& element : bill) {
        json.value(element.level);
    }
    json.endArray();
    json.key("rows");
    json.beginArray(Layout::Line);
    for (const BillElement& element : bill) {
        json.value(things.place(*element.object));
    }
    json.endArray();
}

void writeItems(const std::vector<KitItem>& items, Things& things, JsonWriter& json) {
    json.beginArray(Layout::Line);
    for (const KitItem& item : items) {
        json.beginArray(Layout::Line);
        json.value(things.place(*item.item));
        json.value(item.number);
        json.endArray();
    }
    json.endArray();
}

void writeKit(const Kit& kit, Things& things, JsonWriter& json) {
    json.beginArray(Layout::Line);
    json.value(pathAndId(*kit.place).plain());
    writeItems(kit.broughtIn, things, json);
    json.beginArray(Layout::Line);
    for (const KitFasteners& fasteners : kit.fasteners) {
        json.beginArray(Layout::Line);
        json.value(fasteners.type);
        writeItems(fasteners.items, things, json);
        json.endArray();
    }
    json.endArray();
    writeItems(kit.takenAway, things, json);
    writeItems(kit.putOut, things, json);
    json.endArray();
}

void writeKitsData(const std::optional<Kits>& kits, Things& things, JsonWriter& json) {
    json.key("kits");
    json.beginArray(Layout::Line);
    for (const Kit& kit : kits ? kits->kits : std::vector<Kit>()) {
        writeKit(kit, things, json);
    }
    json.endArray();
    json.key("differences");
    json.beginArray(Layout::Line);
    for (const KitDifference& each : kits ? kits->differences : std::vector<KitDifference>()) {
        json.beginArray(Layout::Line);
        json.value(things.place(*each.item));
        json.value(each.inKits);
        json.value(each.inBill);
        json.value(
            std::accumulate(each.reasons.begin() + 1, each.reasons.end(), each.reasons.front(),
                            [](const std::string& all, const std::string& reason) { return all + "; " + reason; }));
        json.endArray();
    }
    json.endArray();
}

void writeFinding(const Report& report, const Finding& finding, JsonWriter& json) {
    const auto place = report.places.find(finding.object->id());
    json.beginArray(Layout::Line);
    json.value(pathAndId(*finding.object).plain());
    json.value(finding.message);
    json.value(finding.advice);
    json.value(place == report.places.end() ? std::string() : "line " + std::to_string(place->second.line));
    json.endArray();
}

/// Findings come in the order of their codes; those of a code go under its heading.
void writeChecksData(const Report& report, JsonWriter& json) {
    json.key("checks");
    json.beginArray(Layout::Line);
    const auto& findings = report.findings;
    for (std::size_t i = 0; i < findings.size();) {
        const CheckRule& rule = ruleOf(findings[i].code);
        json.beginArray(Layout::Line);
        json.value(rule.heading);
        json.beginArray(Layout::Line);
        for (; i < findings.size() && findings[i].code == rule.code; ++i) {
            writeFinding(report, findings[i], json);
        }
        json.endArray();
        json.endArray();
    }
    json.endArray();
}

} // namespace

void writeReportData(const Report& report, TextSink& sink) {
    std::string text;
    TextSink inMemory(text);
    JsonWriter json(inMemory);
    Things things;
    json.beginObject(Layout::Line);
    writeBillData(report.bill, things, json);
    writeKitsData(report.kits, things, json);
    writeChecksData(report, json);
    things.write(json);
    json.endObject();
    inMemory.finish();
    std::size_t start = 0;
    for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', start)) {
        sink.put(std::string_view(text).substr(start, at - start));
        sink.put("\\u003c");
        start = at + 1;
    }
    sink.put(std::string_view(text).substr(start));
}

} // namespace planner
