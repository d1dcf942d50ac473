#include "planner/file/PlanGrammar.h"

#include <algorithm>
#include <array>

namespace planner {

namespace {

const std::vector<KeyRule> kNoKeys;

const std::vector<KeyRule> kDocumentKeys{{"plan", Key::Plan, Value::Text},
                                         {"version", Key::Version, Value::Version},
                                         {"items", Key::Items, Value::Items},
                                         {"process", Key::Process, Value::Process},
                                         {"resources", Key::Resources, Value::Resources},
                                         {"links", Key::Links, Value::Links},
                                         {"notes", Key::Notes, Value::Notes}};

const std::vector<KeyRule> kItemKeys{{"id", Key::Id, Value::Text},
                                     {"kind", Key::Kind, Value::Text},
                                     {"name", Key::Name, Value::Text},
                                     {"type", Key::Type, Value::Text},
                                     {"assigned", Key::Assigned, Value::Flag},
                                     {"children", Key::Children, Value::Ids},
                                     {"holds", Key::Holds, Value::Ids},
                                     {"shape", Key::Shape, Value::Shape},
                                     {"place", Key::Place, Value::Numbers},
                                     {"notes", Key::Notes, Value::Notes}};

const std::vector<KeyRule> kShapeKeys{
    {"box", Key::Box, Value::Numbers},       {"cylinder", Key::Cylinder, Value::Numbers},
    {"sphere", Key::Sphere, Value::Numbers}, {"step", Key::Step, Value::Text},
    {"part", Key::Part, Value::Text},        {"notes", Key::Notes, Value::Notes}};

const std::vector<KeyRule> kActivityKeys{{"id", Key::Id, Value::Text},
                                         {"name", Key::Name, Value::Text},
                                         {"kind", Key::Kind, Value::Text},
                                         {"type", Key::Type, Value::Text},
                                         {"first_assigned", Key::FirstAssigned, Value::Ids},
                                         {"assigned", Key::Assigned, Value::Ids},
                                         {"removed", Key::Removed, Value::Ids},
                                         {"items", Key::Items, Value::Ids},
                                         {"outputs", Key::Outputs, Value::Ids},
                                         {"children", Key::Children, Value::Activities},
                                         {"notes", Key::Notes, Value::Notes}};

const std::vector<KeyRule> kResourceKeys{{"id", Key::Id, Value::Text},
                                         {"name", Key::Name, Value::Text},
                                         {"behaviour", Key::Behaviour, Value::Behaviour},
                                         {"children", Key::Children, Value::ResourceChildren},
                                         {"notes", Key::Notes, Value::Notes}};

const std::vector<KeyRule> kBehaviourKeys{{"id", Key::Id, Value::Text},
                                          {"activities", Key::Activities, Value::Activities},
                                          {"assigned", Key::Assigned, Value::Ids},
                                          {"outputs", Key::Outputs, Value::Ids},
                                          {"notes", Key::Notes, Value::Notes}};

/// How each value is written, and what messages call it, in the order of the enumeration.
struct ValueRule {
    JsonType type;
    const char* text;
};
constexpr std::array<ValueRule, 22> kValues{{{JsonType::Object, "an object with the plan"},
                                             {JsonType::List, "a list of items"},
                                             {JsonType::Object, "an object with an item"},
                                             {JsonType::Object, "an object with a shape"},
                                             {JsonType::Object, "an object with the root activity"},
                                             {JsonType::List, "a list of activities"},
                                             {JsonType::Object, "an object with an activity"},
                                             {JsonType::List, "a list of resources"},
                                             {JsonType::Object, "an object with a resource"},
                                             {JsonType::List, "a list of resources and ids of items"},
                                             {JsonType::Object, "an object with a resource, or the id of an item"},
                                             {JsonType::Object, "an object with a behaviour"},
                                             {JsonType::List, "a list of ids"},
                                             {JsonType::Text, "an id"},
                                             {JsonType::List, "a list of links"},
                                             {JsonType::List, "a pair of ids"},
                                             {JsonType::List, "a list of numbers"},
                                             {JsonType::Number, "a number"},
                                             {JsonType::Text, "a text"},
                                             {JsonType::Flag, "true or false"},
                                             {JsonType::Number, "1"},
                                             {JsonType::Null, "anything"}}};

const ValueRule& ruleOf(Value value) {
    return kValues[static_cast<std::size_t>(value)];
}

} // namespace

const char* jsonTypeText(JsonType type) {
    constexpr std::array<const char*, 6> kTexts{"null", "true or false", "a number", "a text", "an object", "a list"};
    return kTexts[static_cast<std::size_t>(type)];
}

const std::vector<KeyRule>& keysOf(Value object) {
    switch (object) {
    case Value::Document:
        return kDocumentKeys;
    case Value::Item:
        return kItemKeys;
    case Value::Shape:
        return kShapeKeys;
    case Value::Process:
    case Value::Activity:
        return kActivityKeys;
    case Value::Resource:
    case Value::ResourceChild:
        return kResourceKeys;
    case Value::Behaviour:
        return kBehaviourKeys;
    default:
        return kNoKeys;
    }
}

const KeyRule* findKey(Value object, std::string_view name) {
    const auto& keys = keysOf(object);
    const auto place = std::find_if(keys.begin(), keys.end(), [&](const KeyRule& rule) { return rule.name == name; });
    return place == keys.end() ? nullptr : &*place;
}

std::string_view keyName(Value object, Key key) {
    const auto& keys = keysOf(object);
    return std::find_if(keys.begin(), keys.end(), [&](const KeyRule& rule) { return rule.key == key; })->name;
}

bool isRequired(Value object, Key key) {
    switch (object) {
    case Value::Document:
        return key == Key::Version;
    case Value::Item:
        return key == Key::Id || key == Key::Kind;
    case Value::Process:
    case Value::Activity:
    case Value::Resource:
    case Value::ResourceChild:
        return key == Key::Id;
    default:
        return false;
    }
}

std::string keyNames(Value object) {
    const auto& keys = keysOf(object);
    std::string names;
    for (const KeyRule& rule : keys) {
        names += &rule == &keys.front() ? "" : &rule == &keys.back() ? " or " : ", ";
        names += '"' + std::string(rule.name) + '"';
    }
    return names;
}

Value entryOf(Value list) {
    switch (list) {
    case Value::Items:
        return Value::Item;
    case Value::Activities:
        return Value::Activity;
    case Value::Resources:
        return Value::Resource;
    case Value::ResourceChildren:
        return Value::ResourceChild;
    case Value::Links:
        return Value::Link;
    case Value::Numbers:
        return Value::Number;
    default:
        return Value::Id; // of lists of ids and of links
    }
}

bool accepts(Value expected, JsonType type) {
    return expected == Value::Notes || ruleOf(expected).type == type ||
           (expected == Value::ResourceChild && type == JsonType::Text);
}

const char* valueText(Value expected) {
    return ruleOf(expected).text;
}

} // namespace planner
