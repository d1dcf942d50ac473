#pragma once

#include "planner/file/Faults.h"
#include "planner/file/PlanGrammar.h"
#include "planner/file/References.h"
#include "planner/model/Plan.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace planner {

/// Gives an object its id, or reports that another object of the plan has it.
void giveId(Plan& plan, ModelObject& object, const std::string& id, std::size_t offset, Faults& faults);

/// An item whose keys are still coming. Its kind says which class it is and which keys it may have, and can be the last
/// of them, so the item is made at its end.
class ItemDraft {
public:
    /// Begins another item.
    void clear();

    void keySeen(Key key, std::size_t offset) { keys_.push_back({key, offset}); }
    void text(Key key, std::string value, std::size_t offset);
    void setAssigned(bool assigned) { assigned_ = assigned; }
    void ids(Key key, const std::vector<std::size_t>& offsets);
    void setShape(Shape shape) { shape_ = std::move(shape); }
    void setPlace(Place place) { place_ = std::move(place); }
    void setNotes(std::string json) { notes_ = std::move(json); }

    /// Makes the item in the plan. What its kind doesn't have is reported.
    void make(Plan& plan, References& references, Faults& faults);

private:
    struct KeyPlace {
        Key key;
        std::size_t offset;
    };
    using Offsets = std::vector<std::size_t>;

    std::optional<ItemKind> kind(Faults& faults) const;
    void checkKeys(ItemKind kind, Faults& faults) const;
    void fill(Item& item, References& references);

    std::vector<KeyPlace> keys_;
    std::optional<std::string> id_, kind_, name_, type_;
    std::size_t idOffset_ = 0;
    std::size_t kindOffset_ = 0;
    std::optional<bool> assigned_;
    std::vector<std::pair<Relation, Offsets>> lists_;
    std::optional<Shape> shape_;
    std::optional<Place> place_;
    std::string notes_;
};

} // namespace planner
