#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <vector>

namespace planner {

class ModelObject;

/// Kinds of notification, with the numbers that the views of a plan know them by.
enum class ChangeKind : std::uint8_t {
    None = 0,
    Reworded = 1,        ///< a name, a type, notes or the title read differently; no bill changes
    FlowObjectAdded = 3, ///< an activity, a resource or a behaviour was added
    FlowObjectGone = 17, ///< one was removed or moved
    LinkAdded = 18,
    LinkGone = 27,
    ListsChanged = 29, ///< items or outputs of an activity or a resource, or which of them count
    ItemChanged = 39   ///< an item itself, or a resource as a part of a product
};

/// What a change is for the views when it is made, and when it is taken back.
struct KindPair {
    ChangeKind made = ChangeKind::None;
    ChangeKind takenBack = ChangeKind::None;
    ModelObject* owner = nullptr; ///< whose own lists it changes; null when it changes more, or it isn't known
};

constexpr KindPair eitherWay(ChangeKind kind, ModelObject* owner = nullptr) {
    return {kind, kind, owner};
}

inline constexpr KindPair kFlowObjectAdded{ChangeKind::FlowObjectAdded, ChangeKind::FlowObjectGone};
inline constexpr KindPair kFlowObjectRemoved{ChangeKind::FlowObjectGone, ChangeKind::FlowObjectAdded};
inline constexpr KindPair kFlowObjectMoved = eitherWay(ChangeKind::FlowObjectGone);

/// Kinds of change that are told together.
class ChangeKinds {
public:
    struct Told {
        ChangeKind kind;
        std::vector<ModelObject*> owners; ///< whose own lists changed; empty when more did
    };

    void add(ChangeKind kind, ModelObject* owner) {
        if (kind == ChangeKind::None) {
            return;
        }
        const auto [place, isNew] = owners_.try_emplace(kind);
        if (owner && (isNew || !place->second.empty())) {
            place->second.insert(owner);
        } else {
            place->second.clear();
        }
    }

    /// Each kind once, ascending.
    std::vector<Told> told() const {
        std::vector<Told> result;
        result.reserve(owners_.size());
        for (const auto& [kind, owners] : owners_) {
            result.push_back({kind, {owners.begin(), owners.end()}});
        }
        return result;
    }

private:
    std::map<ChangeKind, std::set<ModelObject*>> owners_; // empty sets: more than lists
};

} // namespace planner
