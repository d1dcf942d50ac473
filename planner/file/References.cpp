#include "planner/file/References.h"

#include "planner/file/JsonText.h"

#include <nlohmann/json.hpp>

#include <array>

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

/// The ids that are named, one after the other, with the objects that have them. A million scattered objects
/// are out of the cache, so each is on its way while those before it are found.
class References::Lookups {
public:
    Lookups(const References& references, std::string_view text, const IdIndex& index)
        : references_(references), text_(text), index_(index) {
        for (std::size_t i = 0; i < kAhead; ++i) {
            sendForNext();
        }
    }

    /// Moves on to the next id; there is one.
    void next() {
        sendForNext();
        index_.sendForObject(at(found_ + kAhead / 2).hash);
        const Named& named = at(found_++);
        object_ = index_.find(named.id, named.hash);
    }

    // The present one.
    ModelObject* object() const { return object_; }
    std::string_view id() const { return at(found_ - 1).id; }
    std::size_t offset() const { return at(found_ - 1).offset; }

private:
    static constexpr std::size_t kAhead = 16;

    struct Named {
        std::size_t offset = 0;
        std::size_t hash = 0;
        std::string_view id;
        std::string decoded; // what id refers to when it holds escapes
    };

    const Named& at(std::size_t place) const { return ring_[place % ring_.size()]; }

    /// Reads the id after those that were sent for; nothing when there is none.
    void sendForNext() {
        const auto& entries = references_.offsets_;
        const auto& links = references_.links_;
        if (sent_ >= entries.size() + links.size()) {
            return;
        }
        Named& named = ring_[sent_ % ring_.size()];
        named.offset = sent_ < entries.size() ? entries[sent_] : links[sent_ - entries.size()];
        named.id = textAt(text_, named.offset, named.decoded);
        named.hash = IdIndex::hashOf(named.id);
        index_.sendForPlace(named.hash);
        ++sent_;
    }

    const References& references_;
    std::string_view text_;
    const IdIndex& index_;
    std::array<Named, 2 * kAhead> ring_;
    std::size_t sent_ = 0;
    std::size_t found_ = 0;
    ModelObject* object_ = nullptr;
};

void References::resolve(std::string_view text, Plan& plan, Faults& faults) {
    faults_ = &faults;
    Lookups lookups(*this, text, plan.index());
    const auto find = [&](Wanted wanted, std::string_view key) {
        lookups.next();
        return check(lookups.object(), lookups.id(), lookups.offset(), wanted, key);
    };
    for (const Entry& entry : entries_) {
        auto& slots = entry.list->make();
        for (std::size_t i = 0; i < entry.count; ++i) {
            slots[entry.firstSlot + i] = find(entry.wanted, relationText(entry.relation));
        }
    }
    for (std::size_t i = 0; i < links_.size(); i += 2) {
        auto* const from = find(Wanted::FlowEnd, "links");
        auto* const to = find(Wanted::FlowEnd, "links");
        if (faults.empty()) {
            plan.addLink(static_cast<FlowObject&>(*from), static_cast<FlowObject&>(*to));
        }
    }
}

/// Reports what is wrong with an object, which may be null, where it is named; gives it back.
ModelObject* References::check(ModelObject* object, std::string_view id, std::size_t offset, Wanted wanted,
                               std::string_view key) {
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
