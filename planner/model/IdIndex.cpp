#include "planner/model/IdIndex.h"

#include "planner/model/ModelObject.h"

#include <functional>

namespace planner {

std::size_t IdIndex::hashOf(std::string_view id) {
    return std::hash<std::string_view>()(id);
}

void IdIndex::sendForPlace(std::size_t hash) const {
    if (!slots_.empty()) {
        __builtin_prefetch(&slots_[hash & (slots_.size() - 1)]);
    }
}

void IdIndex::sendForObject(std::size_t hash) const {
    if (slots_.empty()) {
        return;
    }
    if (const ModelObject* const object = slots_[hash & (slots_.size() - 1)].object) {
        __builtin_prefetch(&object->id());
    }
}

ModelObject* IdIndex::find(std::string_view id, std::size_t hash) const {
    if (slots_.empty()) {
        return nullptr;
    }
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t at = hash & mask; slots_[at].object; at = (at + 1) & mask) {
        if (slots_[at].hash == hash && slots_[at].object->id() == id) {
            return slots_[at].object;
        }
    }
    return nullptr;
}

void IdIndex::insert(ModelObject& object) {
    constexpr std::size_t kSmallest = 16;
    if (2 * (count_ + 1) > slots_.size()) {
        Slots larger(slots_.empty() ? kSmallest : 2 * slots_.size());
        for (const Slot& slot : slots_) {
            if (slot.object) {
                put(larger, slot);
            }
        }
        slots_ = std::move(larger);
    }
    put(slots_, {hashOf(object.id()), &object});
    ++count_;
}

void IdIndex::erase(const ModelObject& object) {
    if (find(object.id()) != &object) {
        return;
    }
    const std::size_t mask = slots_.size() - 1;
    std::size_t gap = hashOf(object.id()) & mask;
    while (slots_[gap].object != &object) {
        gap = (gap + 1) & mask;
    }
    // An entry behind the gap moves into it unless its own probing begins behind the gap.
    for (std::size_t at = (gap + 1) & mask; slots_[at].object; at = (at + 1) & mask) {
        if (((at - slots_[at].hash) & mask) >= ((at - gap) & mask)) {
            slots_[gap] = slots_[at];
            gap = at;
        }
    }
    slots_[gap] = Slot();
    --count_;
}

void IdIndex::put(Slots& slots, Slot entry) {
    const std::size_t mask = slots.size() - 1;
    std::size_t at = entry.hash & mask;
    while (slots[at].object) {
        at = (at + 1) & mask;
    }
    slots[at] = entry;
}

} // namespace planner
