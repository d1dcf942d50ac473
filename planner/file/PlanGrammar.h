#pragma once

#include "planner/model/Geometry.h"
#include "planner/model/Kinds.h"
#include "planner/model/Relation.h"

#include <cstdint>
#include <optional>
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
    Joins,
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

inline constexpr std::size_t kKeyCount = 27;

/// A key that an object may have, or must.
struct KeyRule {
    Key key;
    Value value;
    bool isRequired = false;
};

/// The keys of an object, in the order in which they are written; empty for what is no object.
const std::vector<KeyRule>& keysOf(Value object);

/// The rule for a key of an object, null when it has no such key.
const KeyRule* findKey(Value object, std::string_view name);

/// The name of a key, and the relation of a key that names a list of ids.
std::string_view keyName(Key key);
Relation relationOf(Key key);

/// Whether items of that kind have the key, which is one of an item.
bool hasKey(ItemKind kind, Key key);

/// "\"a\", \"b\" or \"c\"": words for a message.
std::string alternatives(const std::vector<std::string_view>& words);

/// The same of the keys of an object.
std::string keyNames(Value object);

/// What the entries of a list are.
Value entryOf(Value list);

/// Whether a JSON value of that type can stand for it.
bool accepts(Value expected, JsonType type);

/// "a list of ids", say: what a message calls it.
const char* valueText(Value expected);

/// What is wrong with the sizes of a form, or with the numbers of a place; nothing when they are right.
std::optional<std::string> sizesFault(const FormRule& form, const std::vector<double>& sizes);
std::optional<std::string> placeFault(const std::vector<double>& numbers);

inline constexpr const char* kNoStepFile = R"("step" is an empty text; expected the path of a STEP file)";
inline constexpr const char* kPartWithoutFile = R"("part" in a shape that is no file; expected it beside "step")";

} // namespace planner
