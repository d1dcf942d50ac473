#include "planner/text/ObjectText.h"

#include "planner/model/Activity.h"

#include <vector>

namespace planner {

namespace {

constexpr std::size_t kLongestPath = 12;
constexpr std::size_t kKeptAtEnd = 10;

const ModelObject* containerOf(const ModelObject& object) {
    return object.sort() == Sort::Item ? nullptr : static_cast<const FlowObject&>(object).container();
}

void addId(const ModelObject& object, StyledText& text) {
    if (!object.id().empty() && object.hasOwnName()) {
        text.add(" (" + object.id() + ')', Style::Id);
    }
}

} // namespace

std::string_view kindWord(const ModelObject& object) {
    switch (object.sort()) {
    case Sort::Item:
        return kindText(static_cast<const Item&>(object).kind());
    case Sort::Activity:
        return kindText(static_cast<const Activity&>(object).kind());
    case Sort::Resource:
        return "resource";
    case Sort::Behaviour:
        break;
    }
    return "behaviour";
}

StyledText nameAndId(const ModelObject& object, Style nameStyle) {
    if (object.name().empty()) {
        return {object.id(), nameStyle};
    }
    StyledText text(object.name(), nameStyle);
    addId(object, text);
    return text;
}

std::string pathOfNames(const ModelObject& object) {
    std::vector<const std::string*> names;
    for (const ModelObject* each = &object; each; each = containerOf(*each)) {
        if (!each->name().empty()) {
            names.push_back(&each->name());
        }
    }
    std::string path;
    for (std::size_t i = names.size(); i-- > 0;) {
        path += (path.empty() ? "" : " / ") + *names[i];
        if (names.size() > kLongestPath && i + 1 == names.size()) {
            path += " / …";
            i = kKeptAtEnd;
        }
    }
    return path;
}

StyledText pathAndId(const ModelObject& object, Style nameStyle) {
    if (object.name().empty()) {
        const std::string path = pathOfNames(object);
        return {path.empty() || object.id().empty() ? path + object.id() : path + " / " + object.id(), nameStyle};
    }
    StyledText text(pathOfNames(object), nameStyle);
    addId(object, text);
    return text;
}

} // namespace planner
