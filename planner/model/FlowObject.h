#pragma once

#include "planner/model/ModelObject.h"

namespace planner {

struct Link;

using LinkView = OptionalList<Link*>;

/// An object that links can join: an activity, a resource, a behaviour that has an id.
class FlowObject : public ModelObject {
public:
    /// The links that begin here, and those that end here, each in the order of the plan's list.
    const LinkView& linksOut() const { return linksOut_; }
    const LinkView& linksIn() const { return linksIn_; }

    /// What the object stands in: an activity in an activity or a behaviour, a behaviour in its resource, a resource in
    /// a resource. Null at the top and for what doesn't stand in the plan.
    ModelObject* container() const { return container_; }
    void setContainer(ModelObject* container) { container_ = container; }

    void forgetNeighbours() override;

protected:
    using ModelObject::ModelObject;

    /// New lists of what is linked in front of this object and behind it, which the caller deletes; null when there is
    /// no link at all, an empty list when there is none in this direction.
    QORListValQORBaseUnknown_var* newPredecessors() const;
    QORListValQORBaseUnknown_var* newSuccessors() const;

private:
    friend class Plan;

    bool isLinked() const { return !linksOut_.empty() || !linksIn_.empty(); }

    LinkView linksOut_;
    LinkView linksIn_;
    ModelObject* container_ = nullptr;
};

} // namespace planner
