#include "planner/questions/diff/PlanEdits.h"

#include "planner/model/Contents.h"

#include <algorithm>
#include <map>
#include <optional>

namespace planner {

std::string keyOf(const ModelObject& object) {
    const bool isNameless = object.sort() == Sort::Behaviour && object.id().empty();
    return isNameless ? '\n' + static_cast<const FlowObject&>(object).container()->id() : object.id();
}

KeyedPlan::KeyedPlan(Plan& plan) : plan_(plan) {
    for (const Item* item : plan.items) {
        objects_.push_back(item);
    }
    walkPlan(plan, [this](const FlowObject& object, const ModelObject*) { objects_.push_back(&object); });
    for (const ModelObject* object : objects_) {
        if (object->id().empty()) {
            withoutId_.emplace(keyOf(*object), object);
        }
    }
}

const ModelObject* KeyedPlan::find(const std::string& key) const {
    if (const ModelObject* const object = plan_.find(key)) {
        return object;
    }
    const auto found = withoutId_.find(key);
    return found == withoutId_.end() ? nullptr : found->second;
}

namespace {

using Kind = PlanEdit::Kind;

/// How often something is there, by what names it, with an object that does.
template <class Key, class Object>
using Counts = std::map<Key, std::pair<long, Object>>;

/// What stands in both, as often as it does, in the order of the first.
template <class Key>
std::vector<Key> shared(const std::vector<Key>& first, const std::vector<Key>& second) {
    std::map<Key, std::size_t> left;
    for (const Key& key : second) {
        ++left[key];
    }
    std::vector<Key> both;
    for (const Key& key : first) {
        const auto found = left.find(key);
        if (found != left.end() && found->second != 0) {
            --found->second;
            both.push_back(key);
        }
    }
    return both;
}

/// Of what stands in both the first that stands elsewhere now; nothing when the order is kept.
template <class Key>
std::optional<Key> firstElsewhere(const std::vector<Key>& old, const std::vector<Key>& now) {
    if (old == now) {
        return std::nullopt;
    }
    const std::vector<Key> was = shared(old, now);
    const std::vector<Key> is = shared(now, old);
    const auto place = std::mismatch(is.begin(), is.end(), was.begin()).first;
    return place == is.end() ? std::nullopt : std::optional<Key>(*place);
}

std::vector<std::string> keysIn(const ModelObject& container) {
    std::vector<std::string> keys;
    visitContained(const_cast<ModelObject&>(container), [&](const FlowObject& each) { keys.push_back(keyOf(each)); });
    return keys;
}

/// Of the items that a list names; null for a list that isn't there.
std::vector<std::string> keysOf(const ObjectList* list) {
    std::vector<std::string> keys;
    for (const ModelObject* entry : list ? list->entries() : std::vector<ModelObject*>()) {
        if (entry->sort() == Sort::Item) {
            keys.push_back(keyOf(*entry));
        }
    }
    return keys;
}

std::vector<const Link*> linksOf(const KeyedPlan& keyed) {
    std::vector<const Link*> links;
    links.reserve(keyed.plan().links().size());
    for (const Link& link : keyed.plan().links()) {
        links.push_back(&link);
    }
    return links;
}

/// Whether two lists name the same items in the same order.
bool isSameList(const ObjectList* old, const ObjectList* now) {
    static const std::vector<ModelObject*> none;
    const auto& was = old ? old->entries() : none;
    const auto& is = now ? now->entries() : none;
    return std::equal(was.begin(), was.end(), is.begin(), is.end(),
                      [](const ModelObject* left, const ModelObject* right) {
                          return left->sort() == right->sort() && left->id() == right->id();
                      });
}

class Edits {
public:
    Edits(const KeyedPlan& before, const KeyedPlan& after) : before_(before), after_(after) {}

    std::vector<PlanEdit> run() {
        for (const ModelObject* now : after_.objects()) {
            const ModelObject* const old = before_.find(keyOf(*now));
            if (old && old->sort() == now->sort()) {
                compare(*old, *now);
            } else {
                add(Kind::ObjectAdded, *now, containerOf(*now));
                compareLists(nullptr, now);
            }
        }
        for (const ModelObject* old : before_.objects()) {
            const ModelObject* const now = after_.find(keyOf(*old));
            if (!now || now->sort() != old->sort()) {
                add(Kind::ObjectGone, *old, containerOf(*old));
                compareLists(old, nullptr);
            }
        }
        compareLinks();
        return std::move(edits_);
    }

private:
    void add(Kind kind, const ModelObject& object, const ModelObject* other, Relation relation = Relation::Items,
             const ModelObject* before = nullptr) {
        edits_.push_back({kind, &object, other, relation, before});
    }

    static const ModelObject* containerOf(const ModelObject& object) {
        return object.sort() == Sort::Item ? nullptr : static_cast<const FlowObject&>(object).container();
    }

    void compare(const ModelObject& old, const ModelObject& now) {
        const ModelObject* const oldContainer = containerOf(old);
        const ModelObject* const container = containerOf(now);
        if ((oldContainer ? keyOf(*oldContainer) : "") != (container ? keyOf(*container) : "")) {
            add(Kind::StepMoved, now, container);
        }
        if (isAltered(old, now)) {
            add(Kind::Altered, now, nullptr, Relation::Items, &old);
        }
        if (firstElsewhere(keysIn(old), keysIn(now))) {
            add(Kind::StepsReordered, now, nullptr);
        }
        compareLists(&old, &now);
    }

    static bool isAltered(const ModelObject& old, const ModelObject& now) {
        if (old.sort() == Sort::Activity) {
            return static_cast<const Activity&>(old).kind() != static_cast<const Activity&>(now).kind();
        }
        if (old.sort() != Sort::Item) {
            return false;
        }
        const auto* const oldFastener = dynamic_cast<const Fastener*>(&old);
        const auto* const fastener = dynamic_cast<const Fastener*>(&now);
        return static_cast<const Item&>(old).kind() != static_cast<const Item&>(now).kind() ||
               (fastener && (fastener->type.value_or("") != oldFastener->type.value_or("") ||
                             fastener->IsAssigned() != oldFastener->IsAssigned()));
    }

    /// Lists of one object; null for one that isn't there.
    void compareLists(const ModelObject* old, const ModelObject* now) {
        for (const Relation relation : kRelations) {
            const ObjectList* const oldList = old ? listOf(*old, relation) : nullptr;
            const ObjectList* const list = now ? listOf(*now, relation) : nullptr;
            if (relation == Relation::Joins || isSameList(oldList, list)) {
                continue;
            }
            const std::vector<std::string> was = keysOf(oldList);
            const std::vector<std::string> is = keysOf(list);
            Counts<std::string, const ModelObject*> counts;
            count(list, 1, counts);
            count(oldList, -1, counts);
            for (const auto& [key, difference] : counts) {
                if (difference.first != 0) {
                    add(difference.first > 0 ? Kind::ListGains : Kind::ListLoses, now ? *now : *old, difference.second,
                        relation);
                }
            }
            if (firstElsewhere(was, is)) {
                add(Kind::ListReordered, *now, nullptr, relation);
            }
        }
    }

    static void count(const ObjectList* list, long step, Counts<std::string, const ModelObject*>& counts) {
        for (const ModelObject* entry : list ? list->entries() : std::vector<ModelObject*>()) {
            if (entry->sort() == Sort::Item) {
                counts.try_emplace(keyOf(*entry), 0, entry).first->second.first += step;
            }
        }
    }

    /// Links between the same two ends, first and last, are the same on both sides and have no part in any edit.
    void compareLinks() {
        using Ends = std::pair<std::string, std::string>;
        const auto endsOf = [](const Link& link) {
            return Ends(keyOf(*link.from), keyOf(*link.to));
        };
        const auto isSame = [&](const Link* left, const Link* right) {
            return endsOf(*left) == endsOf(*right);
        };
        const std::vector<const Link*> old = linksOf(before_);
        const std::vector<const Link*> now = linksOf(after_);
        const auto first = std::mismatch(old.begin(), old.end(), now.begin(), now.end(), isSame);
        auto oldEnd = old.end();
        auto nowEnd = now.end();
        while (oldEnd != first.first && nowEnd != first.second && isSame(*std::prev(oldEnd), *std::prev(nowEnd))) {
            --oldEnd;
            --nowEnd;
        }
        Counts<Ends, const Link*> counts;
        const auto read = [&](auto link, auto end, long step) {
            std::vector<Ends> all;
            for (; link != end; ++link) {
                all.push_back(endsOf(**link));
                counts.try_emplace(all.back(), 0, *link).first->second.first += step;
            }
            return all;
        };
        const std::vector<Ends> is = read(first.second, nowEnd, 1);
        const std::vector<Ends> was = read(first.first, oldEnd, -1);
        for (const auto& [ends, difference] : counts) {
            if (difference.first != 0) {
                add(difference.first > 0 ? Kind::LinkAdded : Kind::LinkGone, *difference.second->from,
                    difference.second->to);
            }
        }
        if (const std::optional<Ends> elsewhere = firstElsewhere(was, is)) {
            const Link& link = *counts.at(*elsewhere).second;
            add(Kind::LinksReordered, *link.from, link.to);
        }
    }

    const KeyedPlan& before_;
    const KeyedPlan& after_;
    std::vector<PlanEdit> edits_;
};

} // namespace

std::vector<PlanEdit> editsBetween(const KeyedPlan& before, const KeyedPlan& after) {
    return Edits(before, after).run();
}

} // namespace planner
