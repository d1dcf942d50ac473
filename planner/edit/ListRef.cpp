#include "planner/edit/ListRef.h"

#include <algorithm>

namespace planner {

namespace {

/// How far from where it was last seen an object may be found before all entries are told their positions anew.
constexpr std::size_t kFar = 1024;

template <class T>
std::size_t searchFrom(std::size_t start, const std::vector<T*>& entries, const ModelObject& object) {
    std::size_t below = std::min(start, entries.size());
    for (std::size_t above = below; above < entries.size() || below > 0; ++above) {
        if (above < entries.size() && entries[above] == &object) {
            return above;
        }
        if (below > 0 && entries[--below] == &object) {
            return below;
        }
    }
    return entries.size();
}

template <class T>
std::size_t positionIn(const std::vector<T*>& entries, const ModelObject& object) {
    const std::size_t hint = object.positionHint();
    const std::size_t position = searchFrom(hint, entries, object);
    if (std::max(hint, position) - std::min(hint, position) > kFar) {
        for (std::size_t i = 0; i < entries.size(); ++i) {
            entries[i]->setPositionHint(i);
        }
    }
    return position;
}

template <class T>
void insertInto(OptionalList<T*>& list, std::size_t position, ModelObject& object) {
    auto& entries = list.make();
    entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(position), static_cast<T*>(&object));
    object.setPositionHint(position);
}

template <class T>
void eraseFrom(OptionalList<T*>& list, std::size_t position) {
    auto& entries = list.make();
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(position));
}

} // namespace

bool ListRef::present() const {
    return std::visit([](const auto* list) { return list->present(); }, list_);
}

std::size_t ListRef::size() const {
    return std::visit([](const auto* list) { return list->size(); }, list_);
}

void ListRef::insert(std::size_t position, ModelObject& object) {
    std::visit([&](auto* list) { insertInto(*list, position, object); }, list_);
}

void ListRef::erase(std::size_t position) {
    std::visit([&](auto* list) { eraseFrom(*list, position); }, list_);
}

void ListRef::reset() {
    std::visit([](auto* list) { list->reset(); }, list_);
}

std::size_t ListRef::positionOf(const ModelObject& object) const {
    return std::visit([&](const auto* list) { return positionIn(list->entries(), object); }, list_);
}

ObjectList* ListRef::objects() const {
    ObjectList* const* const list = std::get_if<ObjectList*>(&list_);
    return list ? *list : nullptr;
}

} // namespace planner
