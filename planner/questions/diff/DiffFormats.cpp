#include "planner/questions/diff/DiffFormats.h"

#include "planner/text/JsonWriter.h"
#include "planner/text/ObjectText.h"
#include "planner/text/Words.h"

namespace planner {

namespace {

using Kind = BillChange::Kind;

constexpr std::array<const char*, kBillChangeWords.size()> kHeadings{
    "Added", "Gone", "Moved below something else", "Renamed", "Of another kind or type", "In another order"};
constexpr std::array<const char*, kBillChangeWords.size()> kMarks{"+ ", "- ", "> ", "~ ", "~ ", "# "};
constexpr std::array<Style, kBillChangeWords.size()> kStyles{Style::Added,   Style::Gone,    Style::Warning,
                                                             Style::Warning, Style::Warning, Style::Warning};

StyledText plain(const char* text) {
    return StyledText(text);
}

/// An object in an edit; a behaviour without an id goes by its resource.
StyledText nameOf(const ModelObject& object) {
    const bool isNameless = object.sort() == Sort::Behaviour && object.id().empty();
    return isNameless ? StyledText("behaviour of ").add(nameAndId(*static_cast<const FlowObject&>(object).container()))
                      : nameAndId(object);
}

/// What an element stands below, or stood.
StyledText parentText(const ModelObject* parent) {
    return parent ? StyledText("below ").add(nameAndId(*parent)) : StyledText("at the top");
}

/// The object that a change is about; null for the top of the bill.
const ModelObject* objectOf(const BillChange& change) {
    return change.after ? change.after : change.before;
}

StyledText changeText(const BillChange& change) {
    const auto kind = static_cast<std::size_t>(change.kind);
    StyledText text(kMarks[kind], kStyles[kind]);
    const ModelObject* const object = objectOf(change);
    if (!object) { // the top is only reordered
        return text.add("the top of the bill", Style::Plain);
    }
    text.add(nameAndId(*object));
    switch (change.kind) {
    case Kind::Added:
        text.add(plain("  ")).add(parentText(change.parentAfter));
        break;
    case Kind::Gone:
        text.add(plain("  was ")).add(parentText(change.parentBefore));
        break;
    case Kind::Moved:
        text.add(plain("  was ")).add(parentText(change.parentBefore)).add(plain(", is now "));
        text.add(parentText(change.parentAfter));
        break;
    case Kind::Renamed:
        text.add(plain("  was called ")).add(change.before->name(), Style::Name);
        break;
    case Kind::Altered:
    case Kind::Reordered:
        break;
    }
    const std::size_t below = change.elements - 1;
    return below == 0 ? text : text.add(", with " + counted(below, "element") + " below it", Style::Plain);
}

StyledText listText(const PlanEdit& edit) {
    const bool gains = edit.kind == PlanEdit::Kind::ListGains;
    StyledText text = nameOf(*edit.object);
    text.add(": " + std::string(relationText(edit.relation)), Style::Plain);
    return text.add(gains ? " + " : " - ", gains ? Style::Added : Style::Gone).add(nameAndId(*edit.other));
}

/// The link of an edit.
StyledText endsText(const PlanEdit& edit) {
    return nameOf(*edit.object).add(plain(" → ")).add(nameOf(*edit.other));
}

StyledText linkText(const PlanEdit& edit) {
    const bool isNew = edit.kind == PlanEdit::Kind::LinkAdded;
    StyledText text("link");
    return text.add(isNew ? " + " : " - ", isNew ? Style::Added : Style::Gone).add(endsText(edit));
}

const char* yesOrNo(bool is) {
    return is ? "yes" : "no";
}

/// Adds what was altered as "type Spot Weld → Screw", unless it is the same.
void addAltered(const char* what, std::string_view before, std::string_view after, StyledText& text) {
    if (before != after) {
        const bool isFirst = text.pieces().empty();
        text.add((isFirst ? "" : ", ") + std::string(what) + ' ');
        text.add(before.empty() ? "none" : before, Style::Gone).add(plain(" → "));
        text.add(after.empty() ? "none" : after, Style::Added);
    }
}

/// In what an object differs from what it was.
StyledText alteredText(const ModelObject& before, const ModelObject& after) {
    StyledText text;
    addAltered("kind", kindWord(before), kindWord(after), text);
    const auto* const was = dynamic_cast<const Fastener*>(&before);
    const auto* const is = dynamic_cast<const Fastener*>(&after);
    if (was && is) {
        addAltered("type", was->type.value_or(""), is->type.value_or(""), text);
        addAltered("counts as assigned", yesOrNo(was->IsAssigned() != 0), yesOrNo(is->IsAssigned() != 0), text);
    }
    return text;
}

StyledText editText(const PlanEdit& edit) {
    if (edit.kind == PlanEdit::Kind::LinksReordered) {
        return StyledText("the links stand in another order from ").add(endsText(edit)).add(plain(" on"));
    }
    const bool isBehaviour = edit.object->sort() == Sort::Behaviour;
    StyledText text(isBehaviour ? std::string() : std::string(kindWord(*edit.object)) + ' ');
    text.add(nameOf(*edit.object));
    switch (edit.kind) {
    case PlanEdit::Kind::ListGains:
    case PlanEdit::Kind::ListLoses:
        return listText(edit);
    case PlanEdit::Kind::LinkAdded:
    case PlanEdit::Kind::LinkGone:
        return linkText(edit);
    case PlanEdit::Kind::ObjectAdded:
        return text.add(" is new", Style::Added);
    case PlanEdit::Kind::ObjectGone:
        return text.add(" is gone", Style::Gone);
    case PlanEdit::Kind::StepMoved:
        text.add(plain(" now stands "));
        return text.add(edit.other ? StyledText("in ").add(nameOf(*edit.other)) : plain("at the top"));
    case PlanEdit::Kind::StepsReordered:
        return text.add(plain(" has its steps in another order"));
    case PlanEdit::Kind::ListReordered:
        return text.add(" has " + std::string(relationText(edit.relation)) + " in another order");
    case PlanEdit::Kind::LinksReordered:
    case PlanEdit::Kind::Altered:
        break;
    }
    return text.add(plain(": ")).add(alteredText(*edit.before, *edit.object));
}

void writeObject(const char* key, const ModelObject* object, JsonWriter& json) {
    json.key(key);
    if (!object) {
        json.null();
        return;
    }
    json.beginObject(JsonWriter::Layout::Line);
    json.key("id");
    object->id().empty() ? json.null() : json.value(object->id());
    json.member("name", object->name());
    json.member("kind", kindWord(*object));
    json.endObject();
}

/// Where an element stands in one of the bills; null where it stands in none.
void writeStand(const char* key, const ModelObject* object, const ModelObject* parent, bool isTop, JsonWriter& json) {
    json.key(key);
    if (!object && !isTop) {
        json.null();
        return;
    }
    json.beginObject();
    writeObject("object", object, json);
    writeObject("below", parent, json);
    json.endObject();
}

void writeEdit(const PlanEdit& edit, JsonWriter& json) {
    json.beginObject();
    json.member("edit", kPlanEditWords[static_cast<std::size_t>(edit.kind)]);
    writeObject("object", edit.object, json);
    writeObject("other", edit.other, json);
    const bool isOfList = edit.kind == PlanEdit::Kind::ListGains || edit.kind == PlanEdit::Kind::ListLoses ||
                          edit.kind == PlanEdit::Kind::ListReordered;
    json.key("list");
    isOfList ? json.value(relationText(edit.relation)) : json.null();
    json.member("text", editText(edit).plain());
    json.endObject();
}

} // namespace

void writeDiffText(const std::vector<BillChange>& changes, const std::string& title, TextOutput& output) {
    StyledText head(title, Style::Name);
    const std::string summary = changes.empty() ? "the bills are equal" : counted(changes.size(), "change");
    output.line(head.add(": " + summary, Style::Plain));
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const BillChange& change = changes[i];
        if (i == 0 || changes[i - 1].kind != change.kind) {
            output.line();
            output.line(StyledText(kHeadings[static_cast<std::size_t>(change.kind)], Style::Heading));
        }
        output.line(changeText(change), 1);
        for (const PlanEdit& edit : change.edits) {
            output.line(editText(edit), 3);
        }
        if (change.hasMoreEdits) {
            output.line(plain("and more"), 3);
        }
    }
}

void writeDiffJson(const std::vector<BillChange>& changes, TextSink& sink) {
    JsonWriter json(sink);
    json.beginObject();
    json.key("changes");
    json.beginArray();
    for (const BillChange& change : changes) {
        const bool isTop = !objectOf(change);
        json.beginObject();
        json.member("change", kBillChangeWords[static_cast<std::size_t>(change.kind)]);
        writeStand("before", change.before, change.parentBefore, isTop, json);
        writeStand("after", change.after, change.parentAfter, isTop, json);
        json.member("elements", change.elements);
        json.key("edits");
        json.beginArray();
        for (const PlanEdit& edit : change.edits) {
            writeEdit(edit, json);
        }
        json.endArray();
        json.member("has_more_edits", change.hasMoreEdits);
        json.endObject();
    }
    json.endArray();
    json.endObject();
    json.finish();
}

} // namespace planner
