#include "planner/questions/kits/KitsFormats.h"

#include "planner/questions/kits/Structure.h"
#include "planner/text/JsonWriter.h"
#include "planner/text/ObjectText.h"

namespace planner {

namespace {

using Layout = JsonWriter::Layout;

void putNamed(JsonWriter& json, const ModelObject& object) {
    json.member("id", object.id());
    json.member("name", object.name());
    json.member("kind", kindWord(object));
}

void putStructure(JsonWriter& json, const ModelObject& item) {
    json.key("structure");
    json.beginArray();
    const bool isAll = visitStructure(item, [&](const ModelObject& part, int level) {
        json.beginObject(Layout::Line);
        json.member("level", level);
        putNamed(json, part);
        json.endObject();
    });
    json.endArray();
    json.member("has_more_structure", !isAll);
}

void putItems(JsonWriter& json, const char* key, const std::vector<KitItem>& items, KitStructure structure) {
    json.key(key);
    json.beginArray();
    for (const KitItem& entry : items) {
        json.beginObject(structure == KitStructure::Shown ? Layout::Lines : Layout::Line);
        putNamed(json, *entry.item);
        json.member("number", entry.number);
        if (structure == KitStructure::Shown) {
            putStructure(json, *entry.item);
        }
        json.endObject();
    }
    json.endArray();
}

void putFasteners(JsonWriter& json, const Kit& kit) {
    json.key("fasteners");
    json.beginArray();
    for (const KitFasteners& type : kit.fasteners) {
        json.beginObject();
        json.member("type", type.type);
        json.member("number", type.number);
        putItems(json, "items", type.items, KitStructure::LeftOut);
        json.endObject();
    }
    json.endArray();
}

void putPlace(JsonWriter& json, const ModelObject& place) {
    json.beginObject(Layout::Line);
    putNamed(json, place);
    json.member("path", pathOfNames(place));
    json.endObject();
}

void putKit(JsonWriter& json, const Kit& kit, KitStructure structure) {
    json.beginObject();
    json.key("place");
    putPlace(json, *kit.place);
    putItems(json, "brings_in", kit.broughtIn, structure);
    putFasteners(json, kit);
    putItems(json, "takes_away", kit.takenAway, KitStructure::LeftOut);
    putItems(json, "puts_out", kit.putOut, KitStructure::LeftOut);
    json.endObject();
}

void putSums(JsonWriter& json, const Kits& kits) {
    json.key("sums");
    json.beginObject(Layout::Line);
    json.member("brought_in", kits.broughtIn);
    json.member("parts", kits.parts);
    json.member("fasteners", kits.fasteners);
    json.member("put_out", kits.putOut);
    json.member("bill", kits.inBill);
    json.endObject();
}

void putDifference(JsonWriter& json, const KitDifference& difference) {
    json.beginObject();
    putNamed(json, *difference.item);
    json.member("in_kits", difference.inKits);
    json.member("in_bill", difference.inBill);
    json.key("reasons");
    json.beginArray();
    for (const std::string& reason : difference.reasons) {
        json.value(reason);
    }
    json.endArray();
    json.endObject();
}

} // namespace

void writeKitsJson(const Kits& kits, const ModelObject& root, KitStructure structure, TextSink& sink) {
    JsonWriter json(sink);
    json.beginObject();
    json.key("root");
    putPlace(json, root);
    json.member("by", kits.by == KitsBy::Station ? "station" : "step");
    json.key("kits");
    json.beginArray();
    for (const Kit& kit : kits.kits) {
        putKit(json, kit, structure);
    }
    json.endArray();
    putSums(json, kits);
    json.key("differences");
    json.beginArray();
    for (const KitDifference& difference : kits.differences) {
        putDifference(json, difference);
    }
    json.endArray();
    json.endObject();
    json.finish();
}

} // namespace planner
