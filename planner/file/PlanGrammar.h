#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace planner {

/// What a JSON value is, as far as the syntax goes.
enum class JsonType : std::uint8_t { Null, Flag, Number, Text, Object, List };

/// "a text", "a list": what a message calls a value of that type.
const char* jsonTypeText(JsonType type);

/// What a plan file can have at a place.
enum class Value : std::uint8_t {
    Document,
    Items,
    Item,
    Shape,
    Process,
    Activities,
    Activity,
    Resources,
    Resource,
    ResourceChildren,
    ResourceChild, ///< a nested resource or the id of an item
    Behaviour,
    Ids,
    Id,
    Links,
    Link,
    Numbers,
    Number,
    Text,
    Flag,
    Version,
    Notes ///< anything
};

/// Names of all keys; one name can mean different things in different objects.
enum class Key : std::uint8_t {
    Activities,
    Assigned,
    Behaviour,
    Box,
    Children,
    Cylinder,
    FirstAssigned,
    Holds,
    Id,
    Items,
    Kind,
    Links,
    Name,
    Notes,
    Outputs,
    Part,
    Place,
    Plan,
    Process,
    Removed,
    Resources,
    Shape,
    Sphere,
    Step,
    Type,
    Version
};

/// A key that an object may have.
struct KeyRule {
    std::string_view name;
    Key key;
    Value value;
};

/// The keys of an object; empty for what is no object.
const std::vector<KeyRule>& keysOf(Value object);

/// The rule for a key of an object, null when it has no such key.
const KeyRule* findKey(Value object, std::string_view name);

/// The name of a key that the object has.
std::string_view keyName(Value object, Key key);

/// Whether an object must have the key.
bool isRequired(Value object, Key key);

/// "\"id\", \"kind\" or \"name\"": the keys of an object for a message.
std::string keyNames(Value object);

/// What the entries of a list are.
Value entryOf(Value list);

/// Whether a JSON value of that type can stand for it.
bool accepts(Value expected, JsonType type);

/// "a list of ids", say: what a message calls it.
const char* valueText(Value expected);

} // namespace planner
