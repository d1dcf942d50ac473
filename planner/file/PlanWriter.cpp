// The grammar gives the keys of each kind of object and their order; what is written here is the value of each.

#include "planner/file/PlanWriter.h"

#include "planner/file/FileReplacement.h"
#include "planner/file/JsonText.h"
#include "planner/file/PlanGrammar.h"

#include "QORPlatform/framework/QORDeepStack.h"

namespace planner {

namespace {

class Writer {
public:
    explicit Writer(TextSink& sink) : sink_(sink) {}

    void document(const Plan& plan);

private:
    template <class Put>
    void object(Value value, Put put);
    template <class List, class Put>
    void lines(const KeyRule& rule, const List& list, Put put);

    void key(const KeyRule& rule);
    void text(const KeyRule& rule, std::string_view value);
    void optionalText(const KeyRule& rule, const std::optional<std::string>& value);
    void notes(const KeyRule& rule, const std::string& json);
    void ids(const KeyRule& rule, const ObjectList& list);
    void numbers(const KeyRule& rule, const std::vector<double>& values);

    void documentKey(const KeyRule& rule, const Plan& plan);
    void item(const Item& item);
    void itemKey(const KeyRule& rule, const Item& item);
    void shapeKey(const KeyRule& rule, const Shape& shape);
    void link(const Link& link);
    void activity(const Activity& activity);
    void activities(const KeyRule& rule, const OptionalList<Activity*>& list);
    void resource(const Resource& resource);
    void behaviour(const Behaviour& behaviour);
    void resourceChild(const ModelObject& child);
    void commonKey(const KeyRule& rule, const ModelObject& object);

    TextSink& sink_;
    std::size_t level_ = 1; // of the line that is being written
    bool first_ = true;     // whether the next key is the first of its object
};

void Writer::document(const Plan& plan) {
    sink_.put('{');
    for (const KeyRule& rule : keysOf(Value::Document)) {
        documentKey(rule, plan);
    }
    sink_.newLine(0);
    sink_.put("}\n");
}

/// An object, for which put(rule) writes each key that it has.
template <class Put>
void Writer::object(Value value, Put put) {
    sink_.put('{');
    first_ = true;
    for (const KeyRule& rule : keysOf(value)) {
        put(rule);
    }
    sink_.put('}');
    first_ = false;
}

/// A list with each entry on a line of its own, where put(entry) writes it; nothing for an absent list.
template <class List, class Put>
void Writer::lines(const KeyRule& rule, const List& list, Put put) {
    if (!list.present()) {
        return;
    }
    key(rule);
    ++level_;
    const char* separator = "[";
    for (const auto& entry : list) {
        sink_.put(separator);
        separator = ",";
        sink_.newLine(level_);
        put(entry);
    }
    --level_;
    if (list.empty()) {
        sink_.put('[');
    } else {
        sink_.newLine(level_);
    }
    sink_.put(']');
}

/// A key; those of the document begin lines.
void Writer::key(const KeyRule& rule) {
    const bool beginsLine = &rule >= keysOf(Value::Document).data() && &rule <= &keysOf(Value::Document).back();
    sink_.put(first_ ? "" : beginsLine ? "," : ", ");
    if (beginsLine) {
        sink_.newLine(level_);
    }
    first_ = false;
    putJson(sink_, keyName(rule.key));
    sink_.put(": ");
}

void Writer::text(const KeyRule& rule, std::string_view value) {
    key(rule);
    putJson(sink_, value);
}

void Writer::optionalText(const KeyRule& rule, const std::optional<std::string>& value) {
    if (value) {
        text(rule, *value);
    }
}

void Writer::notes(const KeyRule& rule, const std::string& json) {
    if (!json.empty()) {
        key(rule);
        sink_.put(json);
    }
}

void Writer::ids(const KeyRule& rule, const ObjectList& list) {
    if (!list.present()) {
        return;
    }
    key(rule);
    const char* separator = "[";
    for (const ModelObject* object : list) {
        sink_.put(separator);
        separator = ", ";
        putJson(sink_, object->id());
    }
    sink_.put(list.empty() ? "[]" : "]");
}

void Writer::numbers(const KeyRule& rule, const std::vector<double>& values) {
    key(rule);
    const char* separator = "[";
    for (const double value : values) {
        sink_.put(separator);
        separator = ", ";
        sink_.put(jsonNumber(value));
    }
    sink_.put(']');
}

void Writer::documentKey(const KeyRule& rule, const Plan& plan) {
    switch (rule.key) {
    case Key::Plan:
        return optionalText(rule, plan.ownTitle);
    case Key::Notes:
        return notes(rule, plan.notes);
    case Key::Items:
        return lines(rule, plan.items, [this](const Item* each) { item(*each); });
    case Key::Process:
        if (!plan.processIsDefault()) {
            key(rule);
            activity(*plan.process());
        }
        return;
    case Key::Resources:
        return lines(rule, plan.resources, [this](const Resource* each) { resource(*each); });
    case Key::Links:
        return lines(rule, plan.links(), [this](const Link& each) { link(each); });
    default:
        key(rule);
        sink_.put('1'); // the version
    }
}

void Writer::item(const Item& item) {
    object(Value::Item, [&](const KeyRule& rule) { itemKey(rule, item); });
}

void Writer::itemKey(const KeyRule& rule, const Item& item) {
    const auto* const fastener = dynamic_cast<const Fastener*>(&item);
    switch (rule.key) {
    case Key::Kind:
        return text(rule, kindText(item.kind()));
    case Key::Type:
        return optionalText(rule, fastener ? fastener->type : std::nullopt);
    case Key::Assigned:
        if (fastener && fastener->assigned) {
            key(rule);
            sink_.put(*fastener->assigned ? "true" : "false");
        }
        return;
    case Key::Shape:
        if (const auto& shape = item.geometry().shape) {
            key(rule);
            object(Value::Shape, [&](const KeyRule& inner) { shapeKey(inner, *shape); });
        }
        return;
    case Key::Place:
        if (const auto& place = item.geometry().place) {
            numbers(rule, place->numbers);
        }
        return;
    default:
        commonKey(rule, item);
    }
}

void Writer::shapeKey(const KeyRule& rule, const Shape& shape) {
    if (rule.key == Key::Notes) {
        notes(rule, shape.notes);
    } else if (rule.key == Key::Part) {
        optionalText(rule, shape.part);
    } else if (keyName(rule.key) == ruleOf(shape.form).key) {
        shape.form == Shape::Form::Step ? text(rule, shape.file) : numbers(rule, shape.sizes);
    }
}

void Writer::link(const Link& link) {
    sink_.put('[');
    putJson(sink_, link.from->id());
    sink_.put(", ");
    putJson(sink_, link.to->id());
    sink_.put(']');
}

void Writer::activity(const Activity& activity) {
    object(Value::Activity, [&](const KeyRule& rule) {
        switch (rule.key) {
        case Key::Kind:
            return optionalText(rule, activity.ownKind() ? std::optional(std::string(kindText(activity.kind())))
                                                         : std::nullopt);
        case Key::Type:
            return optionalText(rule, activity.ownType());
        case Key::Children:
            return activities(rule, activity.children);
        default:
            return commonKey(rule, activity);
        }
    });
}

void Writer::activities(const KeyRule& rule, const OptionalList<Activity*>& list) {
    lines(rule, list, [this](const Activity* each) { QORCallDeep([&] { activity(*each); }); });
}

void Writer::resource(const Resource& resource) {
    object(Value::Resource, [&](const KeyRule& rule) {
        if (rule.key == Key::Children) {
            lines(rule, resource.children, [this](const ModelObject* each) { resourceChild(*each); });
        } else if (rule.key != Key::Behaviour) {
            commonKey(rule, resource);
        } else if (resource.behaviour()) {
            key(rule);
            behaviour(*resource.behaviour());
        }
    });
}

void Writer::behaviour(const Behaviour& behaviour) {
    object(Value::Behaviour, [&](const KeyRule& rule) {
        rule.key == Key::Activities ? activities(rule, behaviour.activities) : commonKey(rule, behaviour);
    });
}

void Writer::resourceChild(const ModelObject& child) {
    if (child.sort() == Sort::Item) {
        putJson(sink_, child.id());
    } else {
        QORCallDeep([&] { resource(static_cast<const Resource&>(child)); });
    }
}

/// The keys that mean the same wherever they stand, lists of ids among them.
void Writer::commonKey(const KeyRule& rule, const ModelObject& object) {
    if (rule.key == Key::Id) {
        object.id().empty() ? void() : text(rule, object.id());
    } else if (rule.key == Key::Name) {
        object.hasOwnName() ? text(rule, object.name()) : void();
    } else if (rule.key == Key::Notes) {
        notes(rule, object.notes());
    } else if (const ObjectList* const list = listOf(object, relationOf(rule.key))) {
        ids(rule, *list);
    }
}

} // namespace

void writePlan(const Plan& plan, TextSink& sink) {
    Writer(sink).document(plan);
}

std::optional<std::string> writePlanFile(const Plan& plan, const std::string& path) {
    FileReplacement file(path);
    if (auto error = file.error()) {
        return error;
    }
    TextSink sink(file.descriptor());
    writePlan(plan, sink);
    return file.commit(sink.finish());
}

} // namespace planner
