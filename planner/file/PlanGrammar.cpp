#include "planner/file/PlanGrammar.h"

#include "planner/file/JsonText.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace planner {

namespace {

/// The names of the keys, in the order of the enumeration. Relations and forms of shapes have theirs from the model.
constexpr std::array<std::string_view, kKeyCount> kKeyNames{"activities",
                                                            relationText(Relation::Assigned),
                                                            "behaviour",
                                                            ruleOf(Shape::Form::Box).key,
                                                            relationText(Relation::Children),
                                                            ruleOf(Shape::Form::Cylinder).key,
                                                            relationText(Relation::FirstAssigned),
                                                            relationText(Relation::Holds),
                                                            "id",
                                                            relationText(Relation::Items),
                                                            relationText(Relation::Joins),
                                                            "kind",
                                                            "links",
                                                            "name",
                                                            "notes",
                                                            relationText(Relation::Outputs),
                                                            "part",
                                                            "place",
                                                            "plan",
                                                            "process",
                                                            relationText(Relation::Removed),
                                                            "resources",
                                                            "shape",
                                                            ruleOf(Shape::Form::Sphere).key,
                                                            ruleOf(Shape::Form::Step).key,
                                                            "type",
                                                            "version"};

constexpr bool kRequired = true;

const std::vector<KeyRule> kNoKeys;

const std::vector<KeyRule> kDocumentKeys{{Key::Plan, Value::Text},       {Key::Version, Value::Version, kRequired},
                                         {Key::Notes, Value::Notes},     {Key::Items, Value::Items},
                                         {Key::Process, Value::Process}, {Key::Resources, Value::Resources},
                                         {Key::Links, Value::Links}};

const std::vector<KeyRule> kItemKeys{{Key::Id, Value::Text, kRequired}, {Key::Name, Value::Text},
                                     {Key::Notes, Value::Notes},        {Key::Kind, Value::Text, kRequired},
                                     {Key::Type, Value::Text},          {Key::Assigned, Value::Flag},
                                     {Key::Joins, Value::Ids},          {Key::Children, Value::Ids},
                                     {Key::Holds, Value::Ids},          {Key::Shape, Value::Shape},
                                     {Key::Place, Value::Numbers}};

const std::vector<KeyRule> kShapeKeys{{Key::Box, Value::Numbers},    {Key::Cylinder, Value::Numbers},
                                      {Key::Sphere, Value::Numbers}, {Key::Step, Value::Text},
                                      {Key::Part, Value::Text},      {Key::Notes, Value::Notes}};

const std::vector<KeyRule> kActivityKeys{
    {Key::Id, Value::Text, kRequired}, {Key::Name, Value::Text},          {Key::Notes, Value::Notes},
    {Key::Kind, Value::Text},          {Key::Type, Value::Text},          {Key::FirstAssigned, Value::Ids},
    {Key::Assigned, Value::Ids},       {Key::Removed, Value::Ids},        {Key::Items, Value::Ids},
    {Key::Outputs, Value::Ids},        {Key::Children, Value::Activities}};

const std::vector<KeyRule> kResourceKeys{{Key::Id, Value::Text, kRequired},
                                         {Key::Name, Value::Text},
                                         {Key::Notes, Value::Notes},
                                         {Key::Behaviour, Value::Behaviour},
                                         {Key::Children, Value::ResourceChildren}};

const std::vector<KeyRule> kBehaviourKeys{{Key::Id, Value::Text},
                                          {Key::Notes, Value::Notes},
                                          {Key::Assigned, Value::Ids},
                                          {Key::Outputs, Value::Ids},
                                          {Key::Activities, Value::Activities}};

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
    const auto rule =
        std::find_if(keys.begin(), keys.end(), [&](const KeyRule& each) { return keyName(each.key) == name; });
    return rule == keys.end() ? nullptr : &*rule;
}

std::string_view keyName(Key key) {
    return kKeyNames[static_cast<std::size_t>(key)];
}

Relation relationOf(Key key) {
    switch (key) {
    case Key::FirstAssigned:
        return Relation::FirstAssigned;
    case Key::Assigned:
        return Relation::Assigned;
    case Key::Removed:
        return Relation::Removed;
    case Key::Items:
        return Relation::Items;
    case Key::Outputs:
        return Relation::Outputs;
    case Key::Children:
        return Relation::Children;
    case Key::Joins:
        return Relation::Joins;
    default:
        return Relation::Holds;
    }
}

bool hasKey(ItemKind kind, Key key) {
    switch (key) {
    case Key::Children:
        return kind == ItemKind::Product || kind == ItemKind::Assembly;
    case Key::Holds:
        return kind == ItemKind::Assembly;
    case Key::Type:
    case Key::Assigned:
    case Key::Joins:
        return kind == ItemKind::Fastener;
    default:
        return true;
    }
}

std::string alternatives(const std::vector<std::string_view>& words) {
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        text += i == 0 ? "" : i + 1 == words.size() ? " or " : ", ";
        text += '"' + std::string(words[i]) + '"';
    }
    return text;
}

std::string keyNames(Value object) {
    std::vector<std::string_view> names;
    for (const KeyRule& rule : keysOf(object)) {
        names.push_back(keyName(rule.key));
    }
    return alternatives(names);
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

std::optional<std::string> sizesFault(const FormRule& form, const std::vector<double>& sizes) {
    const std::string key = '"' + std::string(form.key) + '"';
    if (sizes.size() != form.sizes) {
        return key + " has " + std::to_string(sizes.size()) + " numbers; expected " + std::to_string(form.sizes);
    }
    for (const double size : sizes) {
        if (!std::isfinite(size) || size <= 0) {
            return key + " has the size " + jsonNumber(size) + "; expected sizes above 0";
        }
    }
    return std::nullopt;
}

std::optional<std::string> placeFault(const std::vector<double>& numbers) {
    if (numbers.size() != 3 && numbers.size() != 6) {
        return "\"place\" has " + std::to_string(numbers.size()) + " numbers; expected 3, or 6 with the turns";
    }
    for (const double number : numbers) {
        if (!std::isfinite(number)) {
            return "\"place\" has the number " + jsonNumber(number) + "; expected finite ones";
        }
    }
    return std::nullopt;
}

} // namespace planner
