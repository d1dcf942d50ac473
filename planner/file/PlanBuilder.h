#pragma once

#include "planner/file/Faults.h"
#include "planner/file/ItemDraft.h"
#include "planner/file/PlanGrammar.h"
#include "planner/file/References.h"
#include "planner/file/ShapeDraft.h"
#include "planner/model/Plan.h"

#include <string>
#include <string_view>
#include <vector>

namespace planner {

/// Where a value stands: the object of the plan that it belongs to, what that object is in the file, the key there,
/// and the place of the value's token.
struct ValuePlace {
    ModelObject* owner; ///< null in the document, an item, a shape
    Value object;
    Key key;
    std::size_t offset;
};

/// Makes the objects of a plan from the values of its file as they come, and reports those that can't be meant. The
/// types of the values are checked before they get here. Ids that stand for other objects are resolved by finish.
class PlanBuilder {
public:
    PlanBuilder(Plan& plan, Faults& faults) : plan_(plan), faults_(faults) {}

    /// An object begins, in the object of the plan that contains it. Gives the object that it is in the plan; null for
    /// the document, an item, a shape.
    ModelObject* begin(Value object, ModelObject* container);
    void end(Value object, std::size_t offset);

    /// A key comes, or a list, which is present from then on.
    void key(Value object, Key key, std::size_t offset);
    void beginList(Value list, ModelObject* owner);

    // A value that is complete.
    void text(const ValuePlace& place, std::string value);
    void flag(bool value) { item_.setAssigned(value); }
    void ids(const ValuePlace& place, const std::vector<std::size_t>& offsets);
    void numbers(const ValuePlace& place, std::vector<double> values);
    void notes(const ValuePlace& place, std::string json);

    // Entries of lists that are ids.
    void resourceChild(ModelObject& owner, std::size_t offset);
    void link(std::size_t from, std::size_t to) { references_.addLink(from, to); }

    /// An id of something that is left out for a fault.
    void skippedId(std::string id) { references_.skipped(std::move(id)); }

    /// Completes the plan from the text that it came from: references, links, identity numbers.
    void finish(std::string_view text);

private:
    void checkText(std::string_view value, std::size_t offset);
    void activityKind(Activity& activity, const ValuePlace& place, const std::string& word);

    Plan& plan_;
    Faults& faults_;
    References references_;
    ItemDraft item_;
    ShapeDraft shape_;
};

} // namespace planner
