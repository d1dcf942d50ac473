#include "planner/file/ItemDraft.h"

#include "planner/file/JsonText.h"

#include <algorithm>

namespace planner {

void giveId(Plan& plan, ModelObject& object, const std::string& id, std::size_t offset, Faults& faults) {
    if (!plan.setId(object, id)) {
        faults.addValue(offset, "the id " + inQuotes(id) + " is that of " + sortText(plan.find(id)->sort()) +
                                    " already; expected one of its own");
    }
}

void ItemDraft::clear() {
    std::vector<KeyPlace> keys = std::move(keys_); // its memory serves again
    keys.clear();
    *this = ItemDraft();
    keys_ = std::move(keys);
}

void ItemDraft::text(Key key, std::string value, std::size_t offset) {
    if (key == Key::Id) {
        id_ = std::move(value);
        idOffset_ = offset;
    } else if (key == Key::Kind) {
        kind_ = std::move(value);
        kindOffset_ = offset;
    } else {
        (key == Key::Name ? name_ : type_) = std::move(value);
    }
}

void ItemDraft::ids(Key key, const std::vector<std::size_t>& offsets) {
    lists_.emplace_back(relationOf(key), offsets);
}

std::optional<ItemKind> ItemDraft::kind(Faults& faults) const {
    if (!kind_) {
        return std::nullopt; // missing, or no text: reported where it was read
    }
    const auto word = std::find(kItemKinds.begin(), kItemKinds.end(), *kind_);
    if (word == kItemKinds.end()) {
        faults.addValue(kindOffset_, "unknown kind of item " + inQuotes(*kind_) + "; expected " +
                                         alternatives({kItemKinds.begin(), kItemKinds.end()}));
        return std::nullopt;
    }
    return static_cast<ItemKind>(word - kItemKinds.begin());
}

void ItemDraft::checkKeys(ItemKind kind, Faults& faults) const {
    for (const KeyPlace& place : keys_) {
        if (!hasKey(kind, place.key)) {
            faults.addValue(place.offset, '"' + std::string(keyName(place.key)) + "\" on an item of kind \"" +
                                              std::string(kindText(kind)) + "\", which has no such key");
        }
    }
}

void ItemDraft::make(Plan& plan, References& references, Faults& faults) {
    const std::optional<ItemKind> known = kind(faults);
    Item& item = plan.newItem(known.value_or(ItemKind::Item));
    plan.items.add(&item);
    if (known) {
        checkKeys(*known, faults);
    } else {
        references.doubt(item);
    }
    if (id_) {
        giveId(plan, item, *id_, idOffset_, faults);
    }
    fill(item, references);
}

void ItemDraft::fill(Item& item, References& references) {
    item.setName(std::move(name_));
    if (shape_) {
        item.setShape(std::move(*shape_));
    }
    if (place_) {
        item.setPlace(std::move(*place_));
    }
    item.setNotes(std::move(notes_));
    for (const auto& [relation, offsets] : lists_) {
        if (listOf(item, relation)) {
            references.add(item, relation, offsets);
        }
    }
    if (auto* const fastener = dynamic_cast<Fastener*>(&item)) {
        fastener->type = std::move(type_);
        fastener->assigned = assigned_;
    }
}

} // namespace planner
