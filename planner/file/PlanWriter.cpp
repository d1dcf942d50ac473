// Activities and resources nest to any depth, so the objects whose lists are open wait on a stack of their own.

#include "planner/file/PlanWriter.h"

#include "planner/file/FileReplacement.h"
#include "planner/file/JsonText.h"

namespace planner {

namespace {

class Writer {
public:
    Writer(const Plan& plan, TextSink& sink) : plan_(plan), sink_(sink) {}

    void write();

private:
    /// An object whose nested objects are being written; without one, the plan's list of resources.
    struct Open {
        const ModelObject* owner;
        const Resource* resource = nullptr; // of a behaviour: the resource that goes on behind it
        std::size_t next = 0;
    };

    void topKey(const char* name);
    void key(const char* name);
    void text(const char* name, const std::string& value);
    void notes(const std::string& json);
    void idList(const char* name, const ObjectList& list);
    void numbers(const char* name, const std::vector<double>& values);
    void header(const ModelObject& object);

    void items();
    void item(const Item& item);
    void shape(const Shape& shape);
    void links();

    const ModelObject* entryAt(const ModelObject* owner, std::size_t position) const;
    void nestedList(Open open);
    void entry(const ModelObject& object);
    void activity(const Activity& activity);
    void resource(const Resource& resource);
    void resourceEnd(const Resource& resource);
    void finishNested();
    void closeNested();

    const Plan& plan_;
    TextSink& sink_;
    std::vector<Open> open_;
    bool first_ = true; // whether the next key is the first of its object
};

void Writer::write() {
    sink_.put('{');
    if (plan_.ownTitle) {
        topKey("plan");
        putJson(sink_, *plan_.ownTitle);
    }
    topKey("version");
    sink_.put('1');
    if (!plan_.notes.empty()) {
        topKey("notes");
        sink_.put(plan_.notes);
    }
    if (plan_.items.present()) {
        items();
    }
    if (!plan_.processIsDefault()) {
        topKey("process");
        activity(*plan_.process());
        finishNested();
        first_ = false;
    }
    if (plan_.resources.present()) {
        topKey("resources");
        nestedList({nullptr});
        finishNested();
        first_ = false;
    }
    if (plan_.links().present()) {
        links();
    }
    sink_.newLine(0);
    sink_.put("}\n");
}

void Writer::topKey(const char* name) {
    sink_.put(first_ ? "" : ",");
    sink_.newLine(1);
    first_ = true;
    key(name);
}

void Writer::key(const char* name) {
    sink_.put(first_ ? "" : ", ");
    first_ = false;
    putJson(sink_, name);
    sink_.put(": ");
}

void Writer::text(const char* name, const std::string& value) {
    key(name);
    putJson(sink_, value);
}

void Writer::notes(const std::string& json) {
    if (!json.empty()) {
        key("notes");
        sink_.put(json);
    }
}

void Writer::idList(const char* name, const ObjectList& list) {
    if (!list.present()) {
        return;
    }
    key(name);
    const char* separator = "[";
    for (const ModelObject* object : list) {
        sink_.put(separator);
        separator = ", ";
        putJson(sink_, object->id());
    }
    sink_.put(list.empty() ? "[]" : "]");
}

void Writer::numbers(const char* name, const std::vector<double>& values) {
    key(name);
    const char* separator = "[";
    for (const double value : values) {
        sink_.put(separator);
        separator = ", ";
        sink_.put(jsonNumber(value));
    }
    sink_.put(']');
}

/// What all objects have, up to the keys of their sort.
void Writer::header(const ModelObject& object) {
    sink_.put('{');
    first_ = true;
    if (!object.id().empty()) {
        text("id", object.id());
    }
    if (object.hasOwnName()) {
        text("name", object.name());
    }
    notes(object.notes());
}

void Writer::items() {
    topKey("items");
    const char* separator = "[";
    for (const Item* each : plan_.items) {
        sink_.put(separator);
        separator = ",";
        sink_.newLine(2);
        item(*each);
    }
    if (!plan_.items.empty()) {
        sink_.newLine(1);
    }
    sink_.put(plan_.items.empty() ? "[]" : "]");
    first_ = false;
}

void Writer::item(const Item& item) {
    header(item);
    text("kind", std::string(kindText(item.kind())));
    if (const auto* const fastener = dynamic_cast<const Fastener*>(&item)) {
        if (fastener->type) {
            text("type", *fastener->type);
        }
        if (fastener->assigned) {
            key("assigned");
            sink_.put(*fastener->assigned ? "true" : "false");
        }
    }
    if (const auto* const product = dynamic_cast<const Product*>(&item)) {
        idList("children", product->children);
    }
    if (const auto* const assembly = dynamic_cast<const Assembly*>(&item)) {
        idList("holds", assembly->holds);
    }
    if (item.geometry().shape) {
        shape(*item.geometry().shape);
    }
    if (item.geometry().place) {
        numbers("place", item.geometry().place->numbers);
    }
    sink_.put('}');
}

void Writer::shape(const Shape& shape) {
    key("shape");
    sink_.put('{');
    first_ = true;
    for (const FormRule& form : kForms) {
        if (form.form == shape.form && form.sizes > 0) {
            numbers(std::string(form.key).c_str(), shape.sizes);
        }
    }
    if (shape.form == Shape::Form::Step) {
        text("step", shape.file);
    }
    if (shape.part) {
        text("part", *shape.part);
    }
    notes(shape.notes);
    sink_.put('}');
    first_ = false;
}

void Writer::links() {
    topKey("links");
    const char* separator = "[";
    for (const Link& link : plan_.links()) {
        sink_.put(separator);
        separator = ",";
        sink_.newLine(2);
        sink_.put('[');
        putJson(sink_, link.from->id());
        sink_.put(", ");
        putJson(sink_, link.to->id());
        sink_.put(']');
    }
    if (!plan_.links().empty()) {
        sink_.newLine(1);
    }
    sink_.put(plan_.links().empty() ? "[]" : "]");
}

/// The nested object at a position of what the owner contains, null behind the last one.
const ModelObject* Writer::entryAt(const ModelObject* owner, std::size_t position) const {
    const auto at = [position](const auto& list) -> const ModelObject* {
        return position < list.size() ? list.entries()[position] : nullptr;
    };
    if (!owner) {
        return at(plan_.resources);
    }
    if (owner->sort() == Sort::Activity) {
        return at(static_cast<const Activity*>(owner)->children);
    }
    return owner->sort() == Sort::Behaviour ? at(static_cast<const Behaviour*>(owner)->activities)
                                            : at(static_cast<const Resource*>(owner)->children);
}

/// Begins a list of nested objects: the stack goes on with it and ends its owner. An empty list is ended at once.
void Writer::nestedList(Open open) {
    sink_.put('[');
    open_.push_back(open);
    if (!entryAt(open.owner, 0)) {
        closeNested();
    }
}

void Writer::finishNested() {
    while (!open_.empty()) {
        Open& open = open_.back();
        if (const ModelObject* const next = entryAt(open.owner, open.next)) {
            sink_.put(open.next++ == 0 ? "" : ",");
            sink_.newLine(open_.size() + 1);
            entry(*next);
        } else {
            sink_.newLine(open_.size());
            closeNested();
        }
    }
}

void Writer::closeNested() {
    const Open closed = open_.back();
    open_.pop_back();
    sink_.put(closed.owner ? "]}" : "]");
    if (closed.resource) {
        resourceEnd(*closed.resource);
    }
}

void Writer::entry(const ModelObject& object) {
    if (object.sort() == Sort::Item) {
        putJson(sink_, object.id());
    } else if (object.sort() == Sort::Activity) {
        activity(static_cast<const Activity&>(object));
    } else {
        resource(static_cast<const Resource&>(object));
    }
}

void Writer::activity(const Activity& activity) {
    header(activity);
    if (activity.hasOwnKind()) {
        text("kind", std::string(kindText(activity.kind())));
    }
    if (activity.hasOwnType()) {
        text("type", activity.type());
    }
    idList("first_assigned", activity.firstAssigned);
    idList("assigned", activity.assigned);
    idList("removed", activity.removed);
    idList("items", activity.items);
    idList("outputs", activity.outputs);
    if (activity.children.present()) {
        key("children");
        nestedList({&activity});
    } else {
        sink_.put('}');
    }
}

void Writer::resource(const Resource& resource) {
    header(resource);
    const Behaviour* const behaviour = resource.behaviour();
    if (!behaviour) {
        resourceEnd(resource);
        return;
    }
    key("behaviour");
    header(*behaviour);
    idList("assigned", behaviour->assigned);
    idList("outputs", behaviour->outputs);
    if (behaviour->activities.present()) {
        key("activities");
        nestedList({behaviour, &resource});
    } else {
        sink_.put('}');
        resourceEnd(resource);
    }
}

void Writer::resourceEnd(const Resource& resource) {
    first_ = false; // its id stands there, whatever came behind it
    if (resource.children.present()) {
        key("children");
        nestedList({&resource});
    } else {
        sink_.put('}');
    }
}

} // namespace

void writePlan(const Plan& plan, TextSink& sink) {
    Writer(plan, sink).write();
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
