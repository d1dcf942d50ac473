#pragma once

#include "planner/file/Faults.h"
#include "planner/model/Plan.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace planner {

/// What a reference may name.
enum class Wanted : std::uint8_t {
    AnyItem,
    ProductOccurrence, ///< whatever answers QORIProduct
    ProductItem,       ///< an item that answers QORIProduct
    FlowEnd            ///< an activity, a resource, a behaviour
};

/// The ids that a file names, kept as places in its text until all objects are known.
class References {
public:
    /// Makes room for ids at the end of the list, which must stay where it is until resolve. The key is for messages.
    void add(ObjectList& list, Wanted wanted, std::string_view key, const std::vector<std::size_t>& offsets);
    void addLink(std::size_t from, std::size_t to);

    /// Leaves the sort of an object out of the checks, since its own entry is faulty.
    void doubt(const ModelObject& object) { doubtful_.insert(&object); }

    /// An id of something that was skipped: references to it are no fault of their own.
    void skipped(std::string id) { skipped_.insert(std::move(id)); }

    /// Puts the objects into the lists and the links into the plan.
    void resolve(std::string_view text, Plan& plan, Faults& faults);

private:
    struct Entry {
        ObjectList* list;
        std::string_view key;
        std::size_t firstSlot;
        std::size_t count;
        Wanted wanted;
    };

    ModelObject* find(std::size_t offset, Wanted wanted, std::string_view key);

    std::vector<Entry> entries_;
    std::vector<std::size_t> offsets_; // of all entries, one behind the other
    std::vector<std::size_t> links_;   // two offsets a link
    std::unordered_set<const ModelObject*> doubtful_;
    std::unordered_set<std::string> skipped_;
    std::string_view text_;
    const Plan* plan_ = nullptr;
    Faults* faults_ = nullptr;
};

} // namespace planner
