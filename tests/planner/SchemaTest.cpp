// The published schema of plan files against the grammar that reads and writes them.

#include "PlanText.h"

#include "planner/file/PlanGrammar.h"
#include "planner/model/Geometry.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <set>

using nlohmann::json;
using planner::JsonType;
using planner::Key;
using planner::Value;
using Names = std::set<std::string>;

namespace {

const json& schema() {
    static const json text = json::parse(plantext::contentOf(DOCS "/plan.schema.json"));
    return text;
}

/// The schema itself where it refers to another.
const json& resolved(const json& part) {
    return part.contains("$ref") ? resolved(schema().at(json::json_pointer(part["$ref"].get<std::string>().substr(1))))
           : part.contains("allOf") ? resolved(part["allOf"][0])
                                    : part;
}

/// What may stand there: the alternatives, or the one that there is.
std::vector<json> alternativesOf(const json& part) {
    const json& one = resolved(part);
    return one.contains("oneOf") && !one.contains("type") ? one["oneOf"].get<std::vector<json>>() : std::vector{one};
}

Names typesOf(const json& part) {
    Names types;
    for (const json& each : alternativesOf(part)) {
        const json& one = resolved(each);
        const json fixed = one.contains("const") ? one["const"] : one.contains("enum") ? one["enum"][0] : json();
        types.insert(one.contains("type") ? one["type"].get<std::string>()
                     : fixed.is_null()    ? "any"
                                          : fixed.type_name());
    }
    return types;
}

Names typesOf(Value value) {
    constexpr const char* kNames[] = {"null", "boolean", "number", "string", "object", "array"};
    Names types;
    for (std::size_t type = 0; type < std::size(kNames); ++type) {
        if (accepts(value, static_cast<JsonType>(type))) {
            types.insert(kNames[type]);
        }
    }
    return types.size() == std::size(kNames) ? Names{"any"} : types;
}

void compare(Value value, const json& part, std::set<Value>& met);

/// An object: the same keys, as many of them required, and nothing else let in.
void compareKeys(Value value, const json& object, const std::function<bool(Key)>& has, std::set<Value>& met) {
    Names keys;
    Names required;
    for (const planner::KeyRule& rule : keysOf(value)) {
        const std::string name(keyName(rule.key));
        if (has(rule.key)) {
            keys.insert(name);
            rule.isRequired ? void(required.insert(name)) : void();
            ASSERT_TRUE(object["properties"].contains(name)) << name << " in " << object;
            compare(rule.value, object["properties"][name], met);
        }
    }
    EXPECT_EQ(object["properties"].size(), keys.size()) << object;
    EXPECT_EQ(object.value("required", Names()), required) << object;
    EXPECT_EQ(object["additionalProperties"], false) << object;
}

void compareShape(const json& part, std::set<Value>& met) {
    const auto forms = alternativesOf(part);
    ASSERT_EQ(forms.size(), planner::kForms.size());
    for (std::size_t i = 0; i < forms.size(); ++i) {
        const planner::FormRule& form = planner::kForms[i];
        const std::string name(form.key);
        EXPECT_EQ(forms[i]["required"], json::array({name}));
        EXPECT_EQ(forms[i]["properties"].contains("part"), form.form == planner::Shape::Form::Step);
        EXPECT_EQ(forms[i]["properties"][name].value("minItems", std::size_t{0}), form.sizes);
        for (const auto& [key, inner] : forms[i]["properties"].items()) {
            ASSERT_TRUE(findKey(Value::Shape, key)) << key;
            compare(findKey(Value::Shape, key)->value, inner, met);
        }
    }
}

void compare(Value value, const json& part, std::set<Value>& met) {
    EXPECT_EQ(typesOf(part), typesOf(value)) << part;
    if (!met.insert(value).second) {
        return;
    }
    if (value == Value::Item) {
        const auto kinds = alternativesOf(part);
        ASSERT_EQ(kinds.size(), planner::kItemKinds.size());
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            const json& kind = resolved(kinds[i]);
            EXPECT_EQ(kind["properties"]["kind"]["const"], planner::kItemKinds[i]);
            compareKeys(
                value, kind, [&](Key key) { return hasKey(static_cast<planner::ItemKind>(i), key); }, met);
        }
    } else if (value == Value::Shape) {
        compareShape(part, met);
    } else if (!keysOf(value).empty()) {
        compareKeys(
            value, resolved(alternativesOf(part)[0]), [](Key) { return true; }, met);
    } else if (typesOf(value) == Names{"array"}) {
        compare(entryOf(value), resolved(part)["items"], met);
    }
}

TEST(Schema, SaysWhatTheGrammarSays) {
    std::set<Value> met;
    compare(Value::Document, schema(), met);
    EXPECT_EQ(met.size(), static_cast<std::size_t>(Value::Notes) + 1) << "every value was met";
    const json& definitions = schema()["$defs"];
    const auto words = definitions["activity"]["properties"]["kind"]["enum"].get<std::vector<std::string>>();
    EXPECT_EQ(words, std::vector<std::string>(planner::kActivityKinds.begin(), planner::kActivityKinds.end()));
    const auto ofRoot = definitions["root"]["properties"]["kind"]["enum"].get<std::vector<std::string>>();
    EXPECT_EQ(ofRoot, std::vector<std::string>(words.begin(), words.end() - 1)) << "all but logical, the last";
}

} // namespace
