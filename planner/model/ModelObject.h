#pragma once

#include "planner/model/OptionalList.h"

#include "QORPlatform/collections/QORListValQORBaseUnknown_var.h"
#include "QORPlatform/framework/QORObjectCounts.h"
#include "QORPlatform/framework/QORVar.h"
#include "QORPlatform/text/QORUnicodeString.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace planner {

/// What an object of a plan is, whatever its kind.
enum class Sort : std::uint8_t { Item, Activity, Resource, Behaviour };

/// "an item", "an activity", "a resource", "a behaviour": for messages.
const char* sortText(Sort sort);

/// An object of a plan: it has an id, a name, an identity number, and answers model interfaces.
///
/// Objects are made by a Plan, which keeps one reference on each until it ends. They point to each other without
/// counting, so that a plan of any shape ends without a cycle and without depth; a handle that outlives the plan is
/// still good, but its object has forgotten its neighbours by then.
class ModelObject : public QORBaseUnknown, private QORCounted<ModelObject> {
public:
    static constexpr std::string_view kCountName = "planner::ModelObject";

    Sort sort() const { return sort_; }

    /// Empty for what the file gives no id: a behaviour without one, the root of a plan without a process.
    const std::string& id() const { return id_; }

    /// The name as a person reads it: the own one, by default the id.
    const std::string& name() const { return hasOwnName_ ? name_ : id_; }
    bool hasOwnName() const { return hasOwnName_; }
    std::optional<std::string> ownName() const { return hasOwnName_ ? std::optional(name_) : std::nullopt; }
    void setName(std::optional<std::string> name);

    /// Whether the object stands in its plan. What was removed, or wasn't added yet, doesn't.
    bool standsInPlan() const { return stands_; }

    /// Where in its list the object was when somebody last looked: a place to begin a search at.
    std::size_t positionHint() const { return positionHint_; }
    void setPositionHint(std::size_t place) const { positionHint_ = static_cast<std::uint32_t>(place); }

    /// Remarks that are kept for a user of the file: JSON text, empty when there are none.
    const std::string& notes() const;
    void setNotes(std::string json);

    /// The object of a plan behind a handle, null when there is none.
    static ModelObject* behind(const QORBaseUnknown_var& handle);

    /// Drops every pointer to other objects of the plan.
    virtual void forgetNeighbours() = 0;

protected:
    explicit ModelObject(Sort sort) : sort_(sort) {}

private:
    friend class Plan;

    std::string id_;
    std::string name_;
    std::unique_ptr<std::string> notes_;
    Sort sort_;
    bool hasOwnName_ = false;
    bool stands_ = false;
    mutable std::uint32_t positionHint_ = 0;
};

using ObjectList = OptionalList<ModelObject*>;

/// New list of handles on the objects, null for an absent list: the answer that model interfaces give.
template <class T>
QORListValQORBaseUnknown_var* newHandles(const OptionalList<T*>& list) {
    if (!list.present()) {
        return nullptr;
    }
    auto handles = std::make_unique<QORListValQORBaseUnknown_var>();
    for (T* object : list) {
        handles->Append(QORBaseUnknown_var(object));
    }
    return handles.release();
}

/// New list of those objects that answer the named interface, null for an absent list.
QORListValQORBaseUnknown_var* newHandlesAnswering(const ObjectList& list, const char* interfaceName);

/// The same text as the platform's string.
inline QORUnicodeString platformText(const std::string& text) {
    return QORUnicodeString(text);
}

} // namespace planner
