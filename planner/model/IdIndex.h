#pragma once

#include "QORPlatform/framework/QORLargeMemory.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace planner {

class ModelObject;

/// Objects by their ids. A flat table that is probed in order: a look-up touches the table once and the object once,
/// which for a million scattered objects is a third of what a hash map of nodes costs.
class IdIndex {
public:
    /// The object of that id, or null.
    ModelObject* find(std::string_view id) const { return find(id, hashOf(id)); }

    /// The same in three parts, for many look-ups in a row: a scattered table is out of the cache, so the place is sent
    /// for some look-ups ahead, then the object, and asked when both are there.
    static std::size_t hashOf(std::string_view id);
    void sendForPlace(std::size_t hash) const;
    void sendForObject(std::size_t hash) const;
    ModelObject* find(std::string_view id, std::size_t hash) const;

    /// Enters an object under its id, which no other object in the index has and which stays the same.
    void insert(ModelObject& object);

    /// Takes an object out; one that isn't in the index is none of its business.
    void erase(const ModelObject& object);

private:
    struct Slot {
        std::size_t hash = 0;
        ModelObject* object = nullptr;
    };

    using Slots = std::vector<Slot, QORLargeAllocator<Slot>>;

    static void put(Slots& slots, Slot entry);

    Slots slots_; // a power of two of them, half of them free
    std::size_t count_ = 0;
};

} // namespace planner
