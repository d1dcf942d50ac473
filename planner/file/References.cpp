#include "planner/file/References.h"

#include "planner/file/JsonText.h"

#include <nlohmann/json.hpp>

namespace planner {

namespace {

/// The string token that begins at the offset; decoded is where it is kept when it holds escapes.
std::string_view textAt(std::string_view text, std::size_t offset, std::string& decoded) {
    std::size_t end = text.find_first_of("\"\\", offset + 1);
    if (text[end] == '"') {
        return text.substr(offset + 1, end - offset - 1);
    }
    while (text[end] != '"') {
        end = text.find_first_of("\"\\", end + 2); // two on: a backslash takes one character with it
    }
    decoded = nlohmann::json::parse(text.substr(offset, end + 1 - offset)).get<std::string>();
    return decoded;
}

std::string description(const ModelObject& object) {
    if (object.sort() != Sort::Item) {
        return sortText(object.sort());
    }
    return "an item of kind \"" + std::string(kindText(static_cast<const Item&>(object).kind())) + '"';
}

} // namespace

void References::add(ModelObject& owner, Relation relation, const std::vector<std::size_t>& offsets) {
    ObjectList& list = *listOf(owner, relation);
    auto& slots = list.make();
    entries_.push_back({&list, slots.size(), offsets.size(), relation, wantedIn(relation, owner.sort())});
    slots.resize(slots.size() + offsets.size());
    offsets_.insert(offsets_.end(), offsets.begin(), offsets.end());
}

void References::addLink(std::size_t from, std::size_t to) {
    links_.push_back(from);
    links_.push_back(to);
}

void References::resolve(std::string_view text, Plan& plan, Faults& faults) {
    text_ = text;
    plan_ = &plan;
    faults_ = &faults;
    auto offset = offsets_.cbegin();
    for (const Entry& entry : entries_) {
        auto& slots = entry.list->make();
        for (std::size_t i = 0; i < entry.count; ++i) {
            slots[entry.firstSlot + i] = find(*offset++, entry.wanted, relationText(entry.relation));
        }
    }
    for (std::size_t i = 0; i < links_.size(); i += 2) {
        auto* const from = find(links_[i], Wanted::FlowEnd, "links");
        auto* const to = find(links_[i + 1], Wanted::FlowEnd, "links");
        if (faults.empty()) {
            plan.addLink(static_cast<FlowObject&>(*from), static_cast<FlowObject&>(*to));
        }
    }
}

ModelObject* References::find(std::size_t offset, Wanted wanted, std::string_view key) {
    std::string decoded;
    const std::string_view id = textAt(text_, offset, decoded);
    ModelObject* const object = plan_->find(id);
    const auto report = [&](const std::string& what) {
        faults_->addValue(offset, '"' + std::string(key) + "\" names " + inQuotes(id) + ", which is " + what +
                                      "; expected the id of " + wantedText(wanted));
    };
    if (!object && !skipped_.contains(std::string(id))) {
        report("not in this plan");
    }
    if (object && !fits(*object, wanted) && !doubtful_.contains(object)) {
        report(description(*object));
    }
    return object;
}

} // namespace planner
