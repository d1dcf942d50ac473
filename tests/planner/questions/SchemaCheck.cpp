#include "SchemaCheck.h"

#include <algorithm>

namespace schemacheck {

using nlohmann::json;

namespace {

bool isOfType(const json& value, const std::string& type) {
    return type == "integer" ? value.is_number_integer() : value.type_name() == type;
}

std::string faultsAt(const json& value, const json& part, const json& schema, const std::string& where) {
    if (part.contains("$ref")) {
        return faultsAt(value, schema.at(json::json_pointer(part["$ref"].get<std::string>().substr(1))), schema, where);
    }
    if (part.contains("oneOf")) {
        const auto fits = [&](const json& each) {
            return faultsAt(value, each, schema, where).empty();
        };
        const auto fitting = std::count_if(part["oneOf"].begin(), part["oneOf"].end(), fits);
        return fitting == 1 ? "" : where + " fits " + std::to_string(fitting) + " alternatives\n";
    }
    std::string faults;
    const json types = part.contains("type") ? part["type"] : json::array();
    const json alternatives = types.is_array() ? types : json::array({types});
    if (!alternatives.empty() && std::none_of(alternatives.begin(), alternatives.end(),
                                              [&](const json& type) { return isOfType(value, type); })) {
        faults += where + " is " + value.type_name() + "\n";
    }
    if (part.contains("enum") && std::find(part["enum"].begin(), part["enum"].end(), value) == part["enum"].end()) {
        faults += where + " is the unknown word " + value.dump() + "\n";
    }
    if (value.is_array() && part.contains("items")) {
        for (std::size_t i = 0; i < value.size(); ++i) {
            faults += faultsAt(value[i], part["items"], schema, where + "/" + std::to_string(i));
        }
    }
    const json members = value.is_object() ? value : json::object();
    for (const auto& [key, inner] : members.items()) {
        const bool isKnown = part.contains("properties") && part["properties"].contains(key);
        faults += isKnown ? faultsAt(inner, part["properties"][key], schema, where + "/" + key)
                          : where + " has the unknown key " + key + "\n";
    }
    for (const json& key : value.is_object() ? part.value("required", json::array()) : json::array()) {
        faults += value.contains(key) ? "" : where + " misses " + key.get<std::string>() + "\n";
    }
    return faults;
}

} // namespace

std::string faultsOf(const json& value, const json& schema) {
    return faultsAt(value, schema, schema, "");
}

} // namespace schemacheck
