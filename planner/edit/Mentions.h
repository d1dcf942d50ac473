#pragma once

#include "planner/model/Plan.h"
#include "planner/model/Relation.h"

#include <cstddef>
#include <unordered_map>
#include <vector>

namespace planner {

/// A list that names an object which stands elsewhere: an item, or a resource as a part of a product.
struct MentioningList {
    ModelObject* owner;
    ObjectList* list;
    std::size_t count; ///< how often it does
};

/// Which lists of a plan name which objects: what has to be looked at when one goes. Made from the plan when it is
/// first asked, and kept in step from then on, so that removing many objects doesn't go through the plan for each.
class Mentions {
public:
    explicit Mentions(Plan& plan) : plan_(plan) {}

    /// The lists that name the object, those of owners that stand in the plan, in no order.
    std::vector<MentioningList> of(const ModelObject& object);

    /// An object has come into a list of the owner, or gone.
    void came(const ModelObject& object, ModelObject& owner, ObjectList& list);
    void went(const ModelObject& object, const ObjectList& list);

    /// An owner, with what its lists hold, has come into the plan, or gone.
    void ownerCame(ModelObject& owner);
    void ownerWent(ModelObject& owner);

private:
    void make();

    Plan& plan_;
    bool made_ = false;
    std::unordered_map<const ModelObject*, std::unordered_map<const ObjectList*, MentioningList>> byObject_;
};

} // namespace planner
