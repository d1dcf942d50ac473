#pragma once

#include "planner/model/ModelObject.h"

namespace planner {

/// An object that links can join: an activity, a resource, a behaviour that has an id.
class FlowObject : public ModelObject {
public:
    /// What is linked behind and in front of this one, in the order of the plan's links.
    const OptionalList<FlowObject*>& successors() const { return successors_; }
    const OptionalList<FlowObject*>& predecessors() const { return predecessors_; }

    void forgetNeighbours() override;

protected:
    using ModelObject::ModelObject;

    /// A new list of the one or the other view, which the caller deletes; null when there is no link at all, an empty
    /// list when there is none in this direction.
    QORListValQORBaseUnknown_var* newView(const OptionalList<FlowObject*>& view) const;

private:
    friend class Plan;

    OptionalList<FlowObject*> successors_;
    OptionalList<FlowObject*> predecessors_;
};

} // namespace planner
