#pragma once

#include "planner/model/Plan.h"
#include "planner/model/Relation.h"

#include <cstddef>
#include <unordered_map>
#include <vector>

namespace planner {

/// A list that names an item.
struct Mention {
    ModelObject* owner;
    ObjectList* list;
    std::size_t count; ///< how often it does
};

/// Which lists of a plan name which items: what has to be looked at when an item goes. Made from the plan when it is
/// first asked, and kept in step from then on, so that removing many items doesn't go through the plan for each.
class Mentions {
public:
    explicit Mentions(Plan& plan) : plan_(plan) {}

    /// The lists that name the item, those of objects that stand in the plan, in no order.
    std::vector<Mention> of(const ModelObject& item);

    /// An item has come into a list of the owner, or gone.
    void came(const ModelObject& item, ModelObject& owner, ObjectList& list);
    void went(const ModelObject& item, const ObjectList& list);

    /// An owner, with what its lists hold, has come into the plan, or gone.
    void ownerCame(ModelObject& owner);
    void ownerWent(ModelObject& owner);

private:
    void make();

    Plan& plan_;
    bool made_ = false;
    std::unordered_map<const ModelObject*, std::unordered_map<const ObjectList*, Mention>> byItem_;
};

} // namespace planner
