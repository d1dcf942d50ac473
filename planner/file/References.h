#pragma once

#include "planner/file/Faults.h"
#include "planner/model/Plan.h"
#include "planner/model/Relation.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace planner {

/// The ids that a file names, kept as places in its text until all objects are known.
class References {
public:
    /// Makes room for ids at the end of a list that the owner has, which must stay where it is until resolve.
    void add(ModelObject& owner, Relation relation, const std::vector<std::size_t>& offsets);
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
        std::size_t firstSlot;
        std::size_t count;
        Relation relation;
        Wanted wanted;
    };

    class Lookups;

    ModelObject* check(ModelObject* object, std::string_view id, std::size_t offset, Wanted wanted,
                       std::string_view key);

    std::vector<Entry> entries_;
    std::vector<std::size_t> offsets_; // of all entries, one behind the other
    std::vector<std::size_t> links_;   // two offsets a link
    std::unordered_set<const ModelObject*> doubtful_;
    std::unordered_set<std::string> skipped_;
    Faults* faults_ = nullptr;
};

} // namespace planner
